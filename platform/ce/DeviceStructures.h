// Structures of which <windows.h> has the desktop's form, as Windows CE has them. Included by Windows.h
// alone.
#pragma once

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

// <shellapi.h> packs these two without gaps, and so would give them to the device at odd addresses.
struct SHFILEINFOW
{
    HICON hIcon;
    int iIcon;
    DWORD dwAttributes;
    wchar_t szDisplayName[MAX_PATH];
    wchar_t szTypeName[80];
};

struct SHELLEXECUTEINFOW
{
    DWORD cbSize;
    ULONG fMask;
    HWND hwnd;
    const wchar_t* lpVerb;
    const wchar_t* lpFile;
    const wchar_t* lpParameters;
    const wchar_t* lpDirectory;
    int nShow;
    HINSTANCE hInstApp;
    void* lpIDList;
    const wchar_t* lpClass;
    HKEY hkeyClass;
    DWORD dwHotKey;
    HANDLE hIcon;
    HANDLE hProcess;
};

extern "C" {
// INVALID_HANDLE_VALUE when nothing matches.
HANDLE WINAPI FindFirstFileW(const wchar_t* pattern, WIN32_FIND_DATAW* data);
BOOL WINAPI FindNextFileW(HANDLE search, WIN32_FIND_DATAW* data);
}
