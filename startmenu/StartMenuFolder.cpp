// Where the Start menu is.
#include "startmenu/StartMenuFolder.h"

#include "framework/PathText.h"

// The shell's list for the folder goes back to the allocator that it came from.
static bool PathOfStartMenu(IMalloc* allocator, HWND owner, CPathText& path)
{
    ITEMIDLIST* folder = nullptr;
    if (FAILED(SHGetSpecialFolderLocation(owner, CSIDL_STARTMENU, &folder))) {
        return false;
    }
    const bool known = SHGetPathFromIDList(folder, path.Room()) != FALSE;
    if (folder != nullptr) {
        allocator->Free(folder);
    }
    return known;
}

bool StartMenuFolder(HWND owner, CStr& path)
{
    IMalloc* allocator = nullptr;
    if (FAILED(SHGetMalloc(&allocator))) {
        return false;
    }
    CPathText found;
    const bool known = PathOfStartMenu(allocator, owner, found) && found[0] != 0;
    allocator->Release();
    if (known) {
        path = found;
        if (*path.At(path.Length() - 1) != L'\\') {
            path.Append(L"\\");
        }
    }
    return known;
}
