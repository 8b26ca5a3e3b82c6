// What the device's libraries expect of the structures that cross the seam: 4-byte handles and pointers, the
// sizes that calls are checked by, and the places that the program reads and writes. On a 64-bit PC they
// differ and every call passes sizeof.
#pragma once

#include "platform/ce/Aygshell.h"
#include "platform/ce/Imaging.h"
#include "platform/ce/Toolhelp.h"
#include "platform/ce/Windows.h"

#include <stddef.h>
#include <stdint.h>

static_assert(sizeof(wchar_t) == 2);
static_assert(sizeof(HEAPLIST32) == 16);

#ifdef UNDER_CE
static_assert(sizeof(void*) == 4 && sizeof(long) == 4 && sizeof(int64_t) == 8 && alignof(int64_t) == 8);
static_assert(sizeof(BufferDisposalFlag) == 4, "enumerations are words");
static_assert(static_cast<char>(-1) < 0, "plain characters have a sign");

static_assert(sizeof(PROCESSENTRY32) == 564);
static_assert(offsetof(PROCESSENTRY32, th32ProcessID) == 8);
static_assert(offsetof(PROCESSENTRY32, cntThreads) == 20);
static_assert(offsetof(PROCESSENTRY32, szExeFile) == 36);
static_assert(offsetof(PROCESSENTRY32, th32MemoryBase) == 556);

static_assert(sizeof(MODULEENTRY32) == 1076);
static_assert(offsetof(MODULEENTRY32, modBaseAddr) == 20);
static_assert(offsetof(MODULEENTRY32, modBaseSize) == 24);
static_assert(offsetof(MODULEENTRY32, szModule) == 32);
static_assert(offsetof(MODULEENTRY32, szExePath) == 552);

static_assert(sizeof(HEAPENTRY32) == 36);
static_assert(offsetof(HEAPENTRY32, dwBlockSize) == 12);
static_assert(offsetof(HEAPENTRY32, dwFlags) == 16);

static_assert(sizeof(WIN32_FIND_DATAW) == 560);
static_assert(offsetof(WIN32_FIND_DATAW, nFileSizeLow) == 32);
static_assert(offsetof(WIN32_FIND_DATAW, cFileName) == 40);

static_assert(sizeof(DEVMODEW) == 192);
static_assert(offsetof(DEVMODEW, dmSize) == 68);
static_assert(offsetof(DEVMODEW, dmFields) == 72);
static_assert(offsetof(DEVMODEW, dmDisplayOrientation) == 188);

static_assert(sizeof(SHMENUBARINFO) == 36);
static_assert(offsetof(SHMENUBARINFO, nToolBarId) == 12);
static_assert(offsetof(SHMENUBARINFO, hInstRes) == 16);
static_assert(offsetof(SHMENUBARINFO, hwndMB) == 28);

static_assert(sizeof(SHACTIVATEINFO) == 12);
static_assert(offsetof(SHACTIVATEINFO, hwndLastFocus) == 4);

static_assert(sizeof(SHRGINFO) == 20);
static_assert(offsetof(SHRGINFO, ptDown) == 8);
static_assert(offsetof(SHRGINFO, dwFlags) == 16);

static_assert(sizeof(SHINITDLGINFO) == 12);
static_assert(offsetof(SHINITDLGINFO, dwFlags) == 8);

static_assert(sizeof(ImageInfo) == 64);
static_assert(offsetof(ImageInfo, PixelFormat) == 16);
static_assert(offsetof(ImageInfo, Width) == 20);
static_assert(offsetof(ImageInfo, Height) == 24);

static_assert(sizeof(SHELLEXECUTEINFOW) == 60);
static_assert(offsetof(SHELLEXECUTEINFOW, lpFile) == 16);
static_assert(offsetof(SHELLEXECUTEINFOW, lpParameters) == 20);
static_assert(offsetof(SHELLEXECUTEINFOW, nShow) == 28);

static_assert(sizeof(MEMORYSTATUS) == 32);
static_assert(offsetof(MEMORYSTATUS, dwTotalPhys) == 8);
static_assert(offsetof(MEMORYSTATUS, dwAvailPhys) == 12);

static_assert(sizeof(SHFILEINFOW) == 692);
static_assert(offsetof(SHFILEINFOW, iIcon) == 4);
static_assert(offsetof(SHFILEINFOW, dwAttributes) == 8);
static_assert(offsetof(SHFILEINFOW, szDisplayName) == 12);

static_assert(sizeof(OSVERSIONINFOW) == 276);
static_assert(offsetof(OSVERSIONINFOW, dwBuildNumber) == 12);
static_assert(offsetof(OSVERSIONINFOW, dwPlatformId) == 16);

static_assert(sizeof(COPYDATASTRUCT) == 12);
static_assert(offsetof(COPYDATASTRUCT, cbData) == 4);
static_assert(offsetof(COPYDATASTRUCT, lpData) == 8);

static_assert(sizeof(WNDCLASSW) == 40);
static_assert(offsetof(WNDCLASSW, lpfnWndProc) == 4);
static_assert(offsetof(WNDCLASSW, lpszClassName) == 36);

static_assert(sizeof(CREATESTRUCTW) == 48);

static_assert(sizeof(MSG) == 28);

static_assert(sizeof(PAINTSTRUCT) == 64);
static_assert(offsetof(PAINTSTRUCT, rcPaint) == 8);

static_assert(sizeof(LOGFONTW) == 92);
static_assert(offsetof(LOGFONTW, lfWeight) == 16);
static_assert(offsetof(LOGFONTW, lfFaceName) == 28);

static_assert(sizeof(TEXTMETRICW) == 60);

static_assert(sizeof(BITMAP) == 24);
static_assert(offsetof(BITMAP, bmWidth) == 4);
static_assert(offsetof(BITMAP, bmHeight) == 8);

static_assert(sizeof(NMHDR) == 12);
static_assert(offsetof(NMHDR, code) == 8);

static_assert(sizeof(MEASUREITEMSTRUCT) == 24);
static_assert(offsetof(MEASUREITEMSTRUCT, itemHeight) == 16);

static_assert(sizeof(DRAWITEMSTRUCT) == 48);
static_assert(offsetof(DRAWITEMSTRUCT, itemID) == 8);
static_assert(offsetof(DRAWITEMSTRUCT, hDC) == 24);
static_assert(offsetof(DRAWITEMSTRUCT, rcItem) == 28);

// The desktop's are longer: what follows the last member of the device is behind a mask bit that is not set.
static_assert(offsetof(LVCOLUMNW, fmt) == 4);
// The desktop's are longer: what follows the last member of the device is behind a mask bit that is not set.
static_assert(offsetof(LVCOLUMNW, cx) == 8);
// The desktop's are longer: what follows the last member of the device is behind a mask bit that is not set.
static_assert(offsetof(LVCOLUMNW, pszText) == 12);
// The desktop's are longer: what follows the last member of the device is behind a mask bit that is not set.
static_assert(offsetof(LVCOLUMNW, iSubItem) == 20);

static_assert(offsetof(LVITEMW, iItem) == 4);
static_assert(offsetof(LVITEMW, state) == 12);
static_assert(offsetof(LVITEMW, stateMask) == 16);
static_assert(offsetof(LVITEMW, lParam) == 32);

static_assert(sizeof(TVITEMW) == 40);
static_assert(offsetof(TVITEMW, hItem) == 4);
static_assert(offsetof(TVITEMW, pszText) == 16);
static_assert(offsetof(TVITEMW, lParam) == 36);

static_assert(offsetof(TVINSERTSTRUCTW, item) == 8);
#endif
