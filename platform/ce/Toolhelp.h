// toolhelp.dll: snapshots of processes, modules and heaps.
#pragma once

#include "platform/ce/Windows.h"

#define TH32CS_SNAPHEAPLIST 0x00000001
#define TH32CS_SNAPPROCESS 0x00000002
#define TH32CS_SNAPMODULE 0x00000008
#define TH32CS_SNAPNOHEAPS 0x40000000 // heaps are walked one process at a time

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

struct PROCESSENTRY32
{
    DWORD dwSize;
    DWORD cntUsage;
    DWORD th32ProcessID;
    DWORD th32DefaultHeapID;
    DWORD th32ModuleID;
    DWORD cntThreads;
    DWORD th32ParentProcessID;
    LONG pcPriClassBase;
    DWORD dwFlags;
    wchar_t szExeFile[MAX_PATH];
    DWORD th32MemoryBase; // the process's slot
    DWORD th32AccessKey;
};

// The platform's names. NOLINTBEGIN(readability-identifier-naming)
struct MODULEENTRY32
{
    DWORD dwSize;
    DWORD th32ModuleID;
    DWORD th32ProcessID;
    DWORD GlblcntUsage;
    DWORD ProccntUsage;
    BYTE* modBaseAddr;
    DWORD modBaseSize; // bytes
    HMODULE hModule;
    wchar_t szModule[MAX_PATH];
    wchar_t szExePath[MAX_PATH];
    DWORD dwFlags;
};
// NOLINTEND(readability-identifier-naming)

extern "C" {
// INVALID_HANDLE_VALUE on failure.
__declspec(dllimport) HANDLE WINAPI CreateToolhelp32Snapshot(DWORD flags, DWORD processId);
__declspec(dllimport) BOOL WINAPI CloseToolhelp32Snapshot(HANDLE snapshot);
// The entries' dwSize must be set before.
__declspec(dllimport) BOOL WINAPI Process32First(HANDLE snapshot, PROCESSENTRY32* entry);
__declspec(dllimport) BOOL WINAPI Process32Next(HANDLE snapshot, PROCESSENTRY32* entry);
__declspec(dllimport) BOOL WINAPI Module32First(HANDLE snapshot, MODULEENTRY32* entry);
__declspec(dllimport) BOOL WINAPI Module32Next(HANDLE snapshot, MODULEENTRY32* entry);
__declspec(dllimport) BOOL WINAPI Heap32ListFirst(HANDLE snapshot, HEAPLIST32* list);
__declspec(dllimport) BOOL WINAPI Heap32ListNext(HANDLE snapshot, HEAPLIST32* list);
__declspec(dllimport) BOOL WINAPI
    Heap32First(HANDLE snapshot, HEAPENTRY32* entry, DWORD processId, DWORD heapId);
__declspec(dllimport) BOOL WINAPI Heap32Next(HANDLE snapshot, HEAPENTRY32* entry);
}
