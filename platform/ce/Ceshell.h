// ceshell.dll: the shell's folders and shortcuts, all by their numbers.
#pragma once

#include "platform/ce/Windows.h"

#include <objidl.h>
#include <shtypes.h>

#ifndef CSIDL_STARTMENU
#define CSIDL_STARTMENU 0x000b
#endif

extern "C" {
// The allocator that item lists are freed through; the caller releases it.
__declspec(dllimport) HRESULT WINAPI SHGetMalloc(IMalloc** allocator);
__declspec(dllimport) HRESULT WINAPI SHGetSpecialFolderLocation(HWND owner, int folder, ITEMIDLIST** item);
// path: room for MAX_PATH characters.
__declspec(dllimport) BOOL WINAPI SHGetPathFromIDList(const ITEMIDLIST* item, wchar_t* path);
// The command that a shortcut starts, with its arguments; size in characters.
__declspec(dllimport) BOOL WINAPI SHGetShortcutTarget(const wchar_t* shortcut, wchar_t* target, int size);
}
