// <windows.h> and its companions, with what Windows CE has otherwise than the desktop they are written for.
#pragma once

#ifdef UNDER_CE
// Structures that the device has in a form of its own: the desktop's get other names.
#define _WIN32_FIND_DATAW DesktopFindDataTag
#define WIN32_FIND_DATAW DesktopFindData
#define PWIN32_FIND_DATAW DesktopFindDataPointer
#define LPWIN32_FIND_DATAW DesktopFindDataLongPointer
#define FindFirstFileW DesktopFindFirstFile
#define FindNextFileW DesktopFindNextFile
#define _SHFILEINFOW DesktopFileInfoTag
#define SHFILEINFOW DesktopFileInfo
#define _SHELLEXECUTEINFOW DesktopExecuteInfoTag
#define SHELLEXECUTEINFOW DesktopExecuteInfo
#define LPSHELLEXECUTEINFOW DesktopExecuteInfoLongPointer
#endif

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>
#include <unknwn.h>

#ifdef UNDER_CE
#undef _WIN32_FIND_DATAW
#undef WIN32_FIND_DATAW
#undef PWIN32_FIND_DATAW
#undef LPWIN32_FIND_DATAW
#undef FindFirstFileW
#undef FindNextFileW
#undef _SHFILEINFOW
#undef SHFILEINFOW
#undef _SHELLEXECUTEINFOW
#undef SHELLEXECUTEINFOW
#undef LPSHELLEXECUTEINFOW

#include "platform/ce/DeviceConstants.h"
#include "platform/ce/DeviceStructures.h"
#endif

#include "platform/ce/Display.h"

// Windows CE exports these without the W that <windows.h> adds.
#undef SHGetFileInfo
#undef ShellExecuteEx
// Names of the program's own methods.
#undef LoadImage
#undef LoadBitmap

#ifndef GN_CONTEXTMENU
#define GN_CONTEXTMENU 1000 // WM_NOTIFY code of a tap-and-hold
#endif
#define SPI_SETSIPINFO 224
#define SPI_GETPLATFORMTYPE 257
#define WM_SETTINGCHANGE_RESET 0x3002 // wParam of WM_SETTINGCHANGE after the screen was rotated or resized
#define MOD_KEYUP 0x1000              // in WM_HOTKEY: the key was released
#ifndef VER_PLATFORM_WIN32_CE
#define VER_PLATFORM_WIN32_CE 3
#endif
#define LVS_EX_CE_THEME 0x20000000 // a bit of the device's list view; desktop list views keep and ignore it

// A system colour's index as the window manager takes it in place of a brush.
#define CE_COLOR_BRUSH(index) (reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(index) + 1))

extern "C" {
__declspec(dllimport) DWORD_PTR WINAPI
    SHGetFileInfo(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT infoSize, UINT flags);
__declspec(dllimport) BOOL WINAPI ShellExecuteEx(SHELLEXECUTEINFOW* info);
// The desktop's GetProcAddress takes a narrow name.
__declspec(dllimport) FARPROC WINAPI GetProcAddressW(HMODULE library, const wchar_t* name);
}
