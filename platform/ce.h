// The platform as the program sees it: the window manager, GDI, files and registry of <windows.h>, and what
// Windows CE and the Windows Mobile shell add to it. The one platform header that the program's folders
// include.
#pragma once

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>
#include <unknwn.h>

#include <stdarg.h>
#include <stddef.h>
#include <stdint.h>
#include <stdlib.h>
#include <string.h>
#include <wchar.h>

// The program's entry, called by the target's start-up code. commandLine is the whole command line as
// GetCommandLineW gives it. The result is the process's exit code.
int ProgramMain(HINSTANCE instance, HINSTANCE previousInstance, const wchar_t* commandLine, int showCommand);

// Windows CE exports this without the W that <windows.h> adds.
#undef SHGetFileInfo
// Names of the program's own methods.
#undef LoadImage
#undef LoadBitmap

// ---- window manager
// -------------------------------------------------------------------------------------------------
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

// ---- aygshell: soft-key menu bars, full-screen dialogs, activation
// --------------------------------------------------
struct SHMENUBARINFO
{
    DWORD cbSize;
    HWND hwndParent;
    DWORD dwFlags;
    UINT nToolBarId; // RCDATA resource: menu id, count, then 7 words a button; 0 for an empty bar
    HINSTANCE hInstRes;
    int nBmpId;
    int cBmpImages;
    HWND hwndMB; // out
    COLORREF clrBk;
};

struct SHACTIVATEINFO
{
    DWORD cbSize;
    HWND hwndLastFocus;
    UINT fSipUp : 1;
    UINT fSipOnDeactivation : 1;
    UINT fActive : 1;
    UINT fReserved : 29;
};

struct SHINITDLGINFO
{
    DWORD dwMask; // SHIDIM_FLAGS
    HWND hDlg;
    DWORD dwFlags; // SHIDIF_
};

#define SHIDIM_FLAGS 0x0001
#define SHIDIF_DONEBUTTON 0x0001
#define SHIDIF_SIZEDLGFULLSCREEN 0x0004
#define SHIDIF_SIPDOWN 0x0008
#define SHIDIF_EMPTYMENU 0x0020

extern "C" {
// Ordinal 9: called once before the first window; takes nothing, its result is not used.
__declspec(dllimport) BOOL WINAPI AygshellStartup();
__declspec(dllimport) BOOL WINAPI SHCreateMenuBar(SHMENUBARINFO* info);
__declspec(dllimport) BOOL WINAPI
    SHHandleWMActivate(HWND window, WPARAM wParam, LPARAM lParam, SHACTIVATEINFO* info, DWORD flags);
__declspec(dllimport) BOOL WINAPI
    SHHandleWMSettingChange(HWND window, WPARAM wParam, LPARAM lParam, SHACTIVATEINFO* info);
__declspec(dllimport) BOOL WINAPI SHInitDialog(SHINITDLGINFO* info);
__declspec(dllimport) void WINAPI SHSendBackToFocusWindow(UINT message, WPARAM wParam, LPARAM lParam);
}

// ---- toolhelp
// -------------------------------------------------------------------------------------------------------
#define TH32CS_SNAPHEAPLIST 0x00000001

struct HEAPLIST32
{
    DWORD dwSize;
    DWORD th32ProcessID;
    DWORD th32HeapID;
    DWORD dwFlags;
};

struct HEAPENTRY32
{
    DWORD dwSize;
    HANDLE hHandle;
    DWORD dwAddress;
    DWORD dwBlockSize; // bytes
    DWORD dwFlags;
    DWORD dwLockCount;
    DWORD dwResvd;
    DWORD th32ProcessID;
    DWORD th32HeapID;
};

extern "C" {
// INVALID_HANDLE_VALUE on failure.
__declspec(dllimport) HANDLE WINAPI CreateToolhelp32Snapshot(DWORD flags, DWORD processId);
__declspec(dllimport) BOOL WINAPI CloseToolhelp32Snapshot(HANDLE snapshot);
__declspec(dllimport) BOOL WINAPI Heap32ListFirst(HANDLE snapshot, HEAPLIST32* list);
__declspec(dllimport) BOOL WINAPI Heap32ListNext(HANDLE snapshot, HEAPLIST32* list);
__declspec(dllimport) BOOL WINAPI
    Heap32First(HANDLE snapshot, HEAPENTRY32* entry, DWORD processId, DWORD heapId);
__declspec(dllimport) BOOL WINAPI Heap32Next(HANDLE snapshot, HEAPENTRY32* entry);
}

// ---- imaging
// --------------------------------------------------------------------------------------------------------
enum BufferDisposalFlag
{
    BufferDisposalFlagNone = 0,
    BufferDisposalFlagGlobalFree = 1, // the image owns the buffer and frees it with LocalFree
    BufferDisposalFlagUnmapView = 2
};

struct ImageInfo
{
    GUID RawDataFormat;
    INT PixelFormat; // a number here, not the desktop's GUID
    UINT Width;      // pixels
    UINT Height;
    UINT TileWidth;
    UINT TileHeight;
    double Xdpi;
    double Ydpi;
    UINT Flags;
};

// COM interfaces are released, never deleted.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
struct IImage : public IUnknown
{
    virtual HRESULT STDMETHODCALLTYPE GetPhysicalDimension(SIZE* size) = 0; // 0.01 mm
    virtual HRESULT STDMETHODCALLTYPE GetImageInfo(ImageInfo* info) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetImageFlags(UINT flags) = 0;
    virtual HRESULT STDMETHODCALLTYPE Draw(HDC target, const RECT* targetRect, const RECT* sourceRect) = 0;
    virtual HRESULT STDMETHODCALLTYPE PushIntoSink(void* sink) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetThumbnail(UINT width, UINT height, IImage** thumbnail) = 0;
};

struct IImagingFactory : public IUnknown
{
    virtual HRESULT STDMETHODCALLTYPE CreateImageFromStream(void* stream, IImage** image) = 0;
    virtual HRESULT STDMETHODCALLTYPE CreateImageFromFile(const wchar_t* path, IImage** image) = 0;
    virtual HRESULT STDMETHODCALLTYPE CreateImageFromBuffer(const void* buffer, UINT size,
                                                            BufferDisposalFlag disposal, IImage** image) = 0;
    // The interface goes on; the program calls nothing behind this method.
};
#pragma GCC diagnostic pop

inline constexpr GUID CLSID_ImagingFactory = {
    0x327abda8, 0x072b, 0x11d3, {0x9d, 0x7b, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
inline constexpr GUID IID_IImagingFactory = {
    0x327abda7, 0x072b, 0x11d3, {0x9d, 0x7b, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
inline constexpr GUID IID_IImage = {
    0x327abda9, 0x072b, 0x11d3, {0x9d, 0x7b, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

// ---- sizes on the device
// --------------------------------------------------------------------------------------------
static_assert(sizeof(HEAPLIST32) == 16);
#ifdef UNDER_CE
static_assert(sizeof(SHMENUBARINFO) == 36);
static_assert(sizeof(SHACTIVATEINFO) == 12);
static_assert(sizeof(HEAPENTRY32) == 36);
static_assert(offsetof(ImageInfo, Width) == 20);
static_assert(sizeof(ImageInfo) == 64);
#endif
