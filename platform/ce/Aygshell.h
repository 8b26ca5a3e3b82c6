// aygshell.dll: soft-key menu bars, full-screen dialogs, activation, tap-and-hold.
#pragma once

#include "platform/ce/Windows.h"

struct SHMENUBARINFO
{
    DWORD cbSize;
    HWND hwndParent;
    DWORD dwFlags;   // SHCMBF_EMPTYBAR or 0
    UINT nToolBarId; // RCDATA resource: menu id, count, then 7 words a button; 0 for an empty bar
    HINSTANCE hInstRes;
    int nBmpId;
    int cBmpImages;
    HWND hwndMB;    // out
    COLORREF clrBk; // not in the record's older form
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

struct SHRGINFO
{
    DWORD cbSize;
    HWND hwndClient;
    POINT ptDown; // in the client area
    DWORD dwFlags;
};

#define SECPOLICY_PRIVELEGEDAPPS 4123 // 0: the device has two tiers of trust (spelled so by the platform)

#define SHCMBF_EMPTYBAR 0x0001 // nToolBarId 0 is refused without it

#define SHRG_RETURNCMD 0x0001 // SHRecognizeGesture answers with the gesture's code

#define SHCMBM_OVERRIDEKEY (WM_USER + 403) // to a menu bar: what a key does while the bar is shown
#define SHMBOF_NODEFAULT 0x0001            // not what it does without
#define SHMBOF_NOTIFY 0x0002               // the bar's owner is told by WM_HOTKEY

#define SHIDIM_FLAGS 0x0001
#define SHIDIF_DONEBUTTON 0x0001
#define SHIDIF_SIZEDLGFULLSCREEN 0x0004
#define SHIDIF_SIPDOWN 0x0008
#define SHIDIF_EMPTYMENU 0x0020

extern "C" {
// By its number, 9: called once before the first window; takes nothing, its result is not used.
__declspec(dllimport) BOOL WINAPI SHInitExtraControls();
__declspec(dllimport) BOOL WINAPI SHCreateMenuBar(SHMENUBARINFO* info);
__declspec(dllimport) BOOL WINAPI
    SHHandleWMActivate(HWND window, WPARAM wParam, LPARAM lParam, SHACTIVATEINFO* info, DWORD flags);
__declspec(dllimport) BOOL WINAPI
    SHHandleWMSettingChange(HWND window, WPARAM wParam, LPARAM lParam, SHACTIVATEINFO* info);
__declspec(dllimport) BOOL WINAPI SHInitDialog(SHINITDLGINFO* info);
// Waits until the stylus is lifted, moved or held long enough; GN_CONTEXTMENU for the last, else 0.
__declspec(dllimport) DWORD WINAPI SHRecognizeGesture(SHRGINFO* info);
__declspec(dllimport) void WINAPI SHSendBackToFocusWindow(UINT message, WPARAM wParam, LPARAM lParam);
// By its number, 364: the value of a security policy, 0 of one that is not set.
__declspec(dllimport) HRESULT WINAPI QueryPolicy(DWORD policyId, DWORD* value);
}
