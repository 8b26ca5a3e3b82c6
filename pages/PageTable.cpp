// The four pages.
#include "pages/PageTable.h"

#include "framework/Assert.h"

const SPage& PageOf(int32_t id)
{
    for (const SPage& page : pageRing) {
        if (page.id == id) {
            return page;
        }
    }
    ReportFatal(ErrorNotFound, L"PageOf", __LINE__);
}

const SPage* PageOfCommand(uint32_t command)
{
    for (const SPage& page : pageRing) {
        if (page.showCommand == command) {
            return &page;
        }
    }
    return nullptr;
}

PageId Neighbour(int32_t id, int steps)
{
    const auto place = static_cast<int>(&PageOf(id) - pageRing);
    const auto count = static_cast<int>(pageCount);
    return pageRing[((place + steps) % count + count) % count].id;
}
