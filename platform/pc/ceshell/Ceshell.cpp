// The exports of the ceshell substitute.
#include "platform/pc/ceshell/Allocator.h"
#include "platform/pc/common/DevicePath.h"
#include "platform/pc/common/Shortcut.h"
#include "platform/pc/common/SpecialFolder.h"

#include <shlobj.h>

// The program knows no more of an item than that it is freed through the allocator.
struct SShellItem
{
    wchar_t path[MAX_PATH];
};

extern "C" HRESULT WINAPI ce_SHGetMalloc(IMalloc** allocator)
{
    if (!allocator) {
        return E_INVALIDARG;
    }
    *allocator = ShellAllocator();
    return S_OK;
}

extern "C" HRESULT WINAPI ce_SHGetSpecialFolderLocation(HWND, int folder, SShellItem** item)
{
    std::wstring path;
    if (!item) {
        return E_INVALIDARG;
    }
    *item = nullptr;
    if (!handheld::FindSpecialFolder(folder, path) || path.size() >= MAX_PATH) {
        return E_FAIL;
    }
    auto* const made = static_cast<SShellItem*>(ShellAllocator()->Alloc(sizeof(SShellItem)));
    if (!made) {
        return E_OUTOFMEMORY;
    }
    lstrcpyW(made->path, path.c_str());
    *item = made;
    return S_OK;
}

extern "C" BOOL WINAPI ce_SHGetPathFromIDList(const SShellItem* item, wchar_t* path)
{
    if (!item || !path) {
        return FALSE;
    }
    lstrcpyW(path, item->path);
    return TRUE;
}

// What does not fit is cut off.
extern "C" BOOL WINAPI ce_SHGetShortcutTarget(const wchar_t* file, wchar_t* target, int size)
{
    handheld::Shortcut shortcut;
    if (!file || !target || size <= 0 || !handheld::ReadShortcut(handheld::DevicePath(file), shortcut)) {
        return FALSE;
    }
    lstrcpynW(target, shortcut.command.c_str(), size);
    return TRUE;
}
