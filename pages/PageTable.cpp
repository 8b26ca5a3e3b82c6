// The four pages.
#include "pages/PageTable.h"

#include "framework/Assert.h"
#include "resources/ids.h"

const SPage pageRing[pageCount] = {
    {PageTasks, CMD_SHOW_TASKS, L"Running applications", L"Running apps"},
    {PageStart, CMD_SHOW_START, L"Start", L"Start"},
    {PageSysInfo, CMD_SHOW_SYSINFO, L"System information", L"System info"},
    {PageProcs, CMD_SHOW_PROCS, L"Processes", L"Processes"},
};

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
