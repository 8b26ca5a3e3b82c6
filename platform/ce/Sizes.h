// What the device's libraries expect of the structures that cross the seam: 4-byte handles and pointers, the
// sizes that calls are checked by, and the places that the program reads and writes. On a 64-bit PC they
// differ and every call passes sizeof.
#pragma once

#include "platform/ce/Aygshell.h"
#include "platform/ce/Imaging.h"
#include "platform/ce/Power.h"
#include "platform/ce/Toolhelp.h"
#include "platform/ce/Windows.h"

#include <stddef.h>
#include <stdint.h>

static_assert(sizeof(wchar_t) == 2);
static_assert(sizeof(HEAPLIST32) == 16);

static_assert(sizeof(DEVMODEW) == 192 && alignof(DEVMODEW) == 4);
static_assert(offsetof(DEVMODEW, dmSize) == 68);
static_assert(offsetof(DEVMODEW, dmFields) == 72);
static_assert(offsetof(DEVMODEW, dmDisplayOrientation) == 188);

#ifdef UNDER_CE
// The libraries write a structure's members as words.
template <class Structure>
constexpr bool HasSize(size_t size)
{
    return sizeof(Structure) == size && alignof(Structure) % 4 == 0;
}

static_assert(sizeof(void*) == 4 && sizeof(long) == 4 && sizeof(int64_t) == 8 && alignof(int64_t) == 8);
static_assert(sizeof(BufferDisposalFlag) == 4, "enumerations are words");
static_assert(static_cast<char>(-1) < 0, "plain characters have a sign");

static_assert(COLOR_SCROLLBAR + 1 == 0x40000001, "the brush of gauges and separators");

static_assert(HasSize<PROCESSENTRY32>(564));
static_assert(offsetof(PROCESSENTRY32, th32ProcessID) == 8);
static_assert(offsetof(PROCESSENTRY32, cntThreads) == 20);
static_assert(offsetof(PROCESSENTRY32, szExeFile) == 36);
static_assert(offsetof(PROCESSENTRY32, th32MemoryBase) == 556);

static_assert(HasSize<MODULEENTRY32>(1076));
static_assert(offsetof(MODULEENTRY32, GlblcntUsage) == 12);
static_assert(offsetof(MODULEENTRY32, ProccntUsage) == 16);
static_assert(offsetof(MODULEENTRY32, modBaseAddr) == 20);
static_assert(offsetof(MODULEENTRY32, modBaseSize) == 24);
static_assert(offsetof(MODULEENTRY32, szModule) == 32);
static_assert(offsetof(MODULEENTRY32, szExePath) == 552);

static_assert(HasSize<HEAPENTRY32>(36));
static_assert(offsetof(HEAPENTRY32, dwBlockSize) == 12);
static_assert(offsetof(HEAPENTRY32, dwFlags) == 16);

static_assert(HasSize<WIN32_FIND_DATAW>(560));
static_assert(offsetof(WIN32_FIND_DATAW, nFileSizeLow) == 32);
static_assert(offsetof(WIN32_FIND_DATAW, cFileName) == 40);

static_assert(HasSize<SHMENUBARINFO>(36));
static_assert(offsetof(SHMENUBARINFO, nToolBarId) == 12);
static_assert(offsetof(SHMENUBARINFO, hInstRes) == 16);
static_assert(offsetof(SHMENUBARINFO, hwndMB) == 28);

static_assert(HasSize<SHACTIVATEINFO>(12));
static_assert(offsetof(SHACTIVATEINFO, hwndLastFocus) == 4);

static_assert(HasSize<SHRGINFO>(20));
static_assert(offsetof(SHRGINFO, ptDown) == 8);
static_assert(offsetof(SHRGINFO, dwFlags) == 16);

static_assert(HasSize<SHINITDLGINFO>(12));
static_assert(offsetof(SHINITDLGINFO, dwFlags) == 8);

static_assert(HasSize<ImageInfo>(64));
static_assert(offsetof(ImageInfo, PixelFormat) == 16);
static_assert(offsetof(ImageInfo, Width) == 20);
static_assert(offsetof(ImageInfo, Height) == 24);

static_assert(HasSize<SHELLEXECUTEINFOW>(60));
static_assert(offsetof(SHELLEXECUTEINFOW, lpFile) == 16);
static_assert(offsetof(SHELLEXECUTEINFOW, lpParameters) == 20);
static_assert(offsetof(SHELLEXECUTEINFOW, nShow) == 28);

static_assert(HasSize<MEMORYSTATUS>(32));
static_assert(offsetof(MEMORYSTATUS, dwMemoryLoad) == 4);
static_assert(offsetof(MEMORYSTATUS, dwTotalPhys) == 8);
static_assert(offsetof(MEMORYSTATUS, dwAvailPhys) == 12);
static_assert(offsetof(MEMORYSTATUS, dwTotalPageFile) == 16);
static_assert(offsetof(MEMORYSTATUS, dwAvailPageFile) == 20);
static_assert(offsetof(MEMORYSTATUS, dwTotalVirtual) == 24);
static_assert(offsetof(MEMORYSTATUS, dwAvailVirtual) == 28);

static_assert(HasSize<SYSTEM_POWER_STATUS_EX>(24));
static_assert(offsetof(SYSTEM_POWER_STATUS_EX, ACLineStatus) == 0);
static_assert(offsetof(SYSTEM_POWER_STATUS_EX, BatteryLifePercent) == 2);
static_assert(offsetof(SYSTEM_POWER_STATUS_EX, BatteryLifeTime) == 4);
static_assert(offsetof(SYSTEM_POWER_STATUS_EX, BatteryFullLifeTime) == 8);
static_assert(offsetof(SYSTEM_POWER_STATUS_EX, BackupBatteryLifePercent) == 14);

// The library writes it as two words; ours to read as one number.
static_assert(HasSize<ULARGE_INTEGER>(8));
static_assert(offsetof(ULARGE_INTEGER, LowPart) == 0);
static_assert(offsetof(ULARGE_INTEGER, HighPart) == 4);
static_assert(offsetof(ULARGE_INTEGER, QuadPart) == 0);

static_assert(HasSize<SHFILEINFOW>(692));
static_assert(offsetof(SHFILEINFOW, iIcon) == 4);
static_assert(offsetof(SHFILEINFOW, dwAttributes) == 8);
static_assert(offsetof(SHFILEINFOW, szDisplayName) == 12);

static_assert(HasSize<OSVERSIONINFOW>(276));
static_assert(offsetof(OSVERSIONINFOW, dwBuildNumber) == 12);
static_assert(offsetof(OSVERSIONINFOW, dwPlatformId) == 16);

static_assert(HasSize<COPYDATASTRUCT>(12));
static_assert(offsetof(COPYDATASTRUCT, cbData) == 4);
static_assert(offsetof(COPYDATASTRUCT, lpData) == 8);

static_assert(HasSize<WNDCLASSW>(40));
static_assert(offsetof(WNDCLASSW, lpfnWndProc) == 4);
static_assert(offsetof(WNDCLASSW, lpszClassName) == 36);

static_assert(HasSize<CREATESTRUCTW>(48));

static_assert(HasSize<MSG>(28));

static_assert(HasSize<PAINTSTRUCT>(64));
static_assert(offsetof(PAINTSTRUCT, rcPaint) == 8);

static_assert(HasSize<LOGFONTW>(92));
static_assert(offsetof(LOGFONTW, lfWeight) == 16);
static_assert(offsetof(LOGFONTW, lfFaceName) == 28);

static_assert(HasSize<TEXTMETRICW>(60));

static_assert(HasSize<BITMAP>(24));
static_assert(offsetof(BITMAP, bmWidth) == 4);
static_assert(offsetof(BITMAP, bmHeight) == 8);

static_assert(HasSize<NMHDR>(12));
static_assert(offsetof(NMHDR, code) == 8);

static_assert(HasSize<MEASUREITEMSTRUCT>(24));
static_assert(offsetof(MEASUREITEMSTRUCT, itemHeight) == 16);

static_assert(HasSize<DRAWITEMSTRUCT>(48));
static_assert(offsetof(DRAWITEMSTRUCT, itemID) == 8);
static_assert(offsetof(DRAWITEMSTRUCT, hDC) == 24);
static_assert(offsetof(DRAWITEMSTRUCT, rcItem) == 28);

// The desktop's are longer: what follows the last member of the device is behind a mask bit that is not set.
static_assert(alignof(LVCOLUMNW) == 4 && alignof(LVITEMW) == 4);
static_assert(offsetof(LVCOLUMNW, fmt) == 4);
static_assert(offsetof(LVCOLUMNW, cx) == 8);
static_assert(offsetof(LVCOLUMNW, pszText) == 12);
static_assert(offsetof(LVCOLUMNW, iSubItem) == 20);

static_assert(offsetof(LVITEMW, iItem) == 4);
static_assert(offsetof(LVITEMW, state) == 12);
static_assert(offsetof(LVITEMW, stateMask) == 16);
static_assert(offsetof(LVITEMW, lParam) == 32);

static_assert(HasSize<TVITEMW>(40));
static_assert(offsetof(TVITEMW, hItem) == 4);
static_assert(offsetof(TVITEMW, pszText) == 16);
static_assert(offsetof(TVITEMW, lParam) == 36);

static_assert(offsetof(TVINSERTSTRUCTW, item) == 8);
#endif
