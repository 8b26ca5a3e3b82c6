// What a search yields, as the device lays it out: shorter than the desktop's.
#include "tools/runner/bridges/FindData.h"

#include <cwchar>

namespace runner {

namespace {

struct FindData
{
    Word attributes;
    FILETIME created;
    FILETIME accessed;
    FILETIME written;
    Word sizeHigh;
    Word sizeLow;
    Word object;
    char16_t name[MAX_PATH];
};
static_assert(sizeof(FindData) == 560);

} // namespace

void GiveFindData(Call& call, Address address, const WIN32_FIND_DATAW& data)
{
    FindData found = {data.dwFileAttributes,
                      data.ftCreationTime,
                      data.ftLastAccessTime,
                      data.ftLastWriteTime,
                      data.nFileSizeHigh,
                      data.nFileSizeLow,
                      0,
                      {}};
    std::memcpy(found.name, data.cFileName, sizeof found.name);
    // The room behind the name stays as it is.
    const Word size =
        static_cast<Word>(offsetof(FindData, name) + (std::wcslen(data.cFileName) + 1) * sizeof(wchar_t));
    call.Room(address, sizeof found);
    std::memcpy(call.Out(address, size), &found, size);
}

} // namespace runner
