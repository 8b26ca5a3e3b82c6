// The shell's small-icon image list.
#include "lists/SystemIcons.h"

static constexpr UINT smallIndexFlags = SHGFI_SYSICONINDEX | SHGFI_SMALLICON;

int SystemIconIndex(const wchar_t* path)
{
    if (path[0] == 0) {
        return -1;
    }
    SHFILEINFOW info = {};
    info.iIcon = -1; // a failing query leaves it alone
    SHGetFileInfo(path, 0, &info, sizeof info, smallIndexFlags);
    return info.iIcon;
}

void SSystemIcons::Fetch()
{
    SHFILEINFOW info = {};
    info.iIcon = -1;
    list = reinterpret_cast<HIMAGELIST>(SHGetFileInfo(L"\\", 0, &info, sizeof info, smallIndexFlags));
    rootIcon = info.iIcon;
    width = height = 16;
    ImageList_GetIconSize(list, &width, &height);
}
