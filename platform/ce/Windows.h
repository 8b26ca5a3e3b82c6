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
#define _devicemodeW DesktopDeviceModeTag
#define DEVMODEW DesktopDeviceMode
#define PDEVMODEW DesktopDeviceModePointer
#define NPDEVMODEW DesktopDeviceModeNearPointer
#define LPDEVMODEW DesktopDeviceModeLongPointer
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
#undef _devicemodeW
#undef DEVMODEW
#undef PDEVMODEW
#undef NPDEVMODEW
#undef LPDEVMODEW
#endif

// Windows CE exports this without the W that <windows.h> adds.
#undef SHGetFileInfo
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

#ifdef UNDER_CE
// The device marks the indices of system colours.
#undef COLOR_SCROLLBAR
#undef COLOR_WINDOW
#undef COLOR_WINDOWFRAME
#undef COLOR_WINDOWTEXT
#undef COLOR_HIGHLIGHT
#undef COLOR_HIGHLIGHTTEXT
#define COLOR_SCROLLBAR (0 | 0x40000000)
#define COLOR_WINDOW (5 | 0x40000000)
#define COLOR_WINDOWFRAME (6 | 0x40000000)
#define COLOR_WINDOWTEXT (8 | 0x40000000)
#define COLOR_HIGHLIGHT (13 | 0x40000000)
#define COLOR_HIGHLIGHTTEXT (14 | 0x40000000)
#endif

// A system colour's index as the window manager takes it in place of a brush.
#define CE_COLOR_BRUSH(index) (reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(index) + 1))

extern "C" {
__declspec(dllimport) DWORD_PTR WINAPI
    SHGetFileInfo(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT infoSize, UINT flags);
}

#ifdef UNDER_CE
struct WIN32_FIND_DATAW
{
    DWORD dwFileAttributes;
    FILETIME ftCreationTime;
    FILETIME ftLastAccessTime;
    FILETIME ftLastWriteTime;
    DWORD nFileSizeHigh;
    DWORD nFileSizeLow;
    DWORD dwOID; // the object store's name for the file
    wchar_t cFileName[MAX_PATH];
};

struct DEVMODEW
{
    wchar_t dmDeviceName[32];
    WORD dmSpecVersion;
    WORD dmDriverVersion;
    WORD dmSize;
    WORD dmDriverExtra;
    DWORD dmFields;
    short dmOrientation; // of a printer's paper, as all up to dmCollate
    short dmPaperSize;
    short dmPaperLength;
    short dmPaperWidth;
    short dmScale;
    short dmCopies;
    short dmDefaultSource;
    short dmPrintQuality;
    short dmColor;
    short dmDuplex;
    short dmYResolution;
    short dmTTOption;
    short dmCollate;
    wchar_t dmFormName[32];
    WORD dmLogPixels;
    DWORD dmBitsPerPel;
    DWORD dmPelsWidth;
    DWORD dmPelsHeight;
    DWORD dmDisplayFlags;
    DWORD dmDisplayFrequency;
    DWORD dmDisplayOrientation; // of the screen: 0, 1 (90 degrees), 2 (180) or 4 (270)
};

extern "C" {
// INVALID_HANDLE_VALUE when nothing matches.
HANDLE WINAPI FindFirstFileW(const wchar_t* pattern, WIN32_FIND_DATAW* data);
BOOL WINAPI FindNextFileW(HANDLE search, WIN32_FIND_DATAW* data);
}
#endif
