// What a running program has created and not given back, seen from outside.
#include "tests/support/ProcessObjects.h"

#include "tests/support/GdiTable.h"

#include <winternl.h>

#include <numeric>
#include <vector>

static bool Read(HANDLE process, const void* address, void* data, size_t size)
{
    SIZE_T read = 0;
    return ReadProcessMemory(process, address, data, size, &read) && read == size;
}

static const uint8_t* PebOf(HANDLE process)
{
    const FARPROC function = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQueryInformationProcess");
    auto* query = reinterpret_cast<decltype(&NtQueryInformationProcess)>(reinterpret_cast<void*>(function));
    PROCESS_BASIC_INFORMATION basic = {};
    query(process, ProcessBasicInformation, &basic, sizeof(basic), nullptr);
    return reinterpret_cast<const uint8_t*>(basic.PebBaseAddress);
}

static int GdiObjectsOf(HANDLE process)
{
    const uint8_t* const peb = PebOf(process);
    const void* table = nullptr;
    std::vector<GdiEntry> entries(gdiEntryCount);
    if (!peb || !Read(process, peb + gdiTableInPeb, &table, sizeof(table)) ||
        !Read(process, table, entries.data(), entries.size() * sizeof(GdiEntry))) {
        return 0;
    }
    const GdiCounts counts = CountGdiObjects(entries.data());
    return std::accumulate(counts.begin(), counts.end(), 0);
}

namespace {

struct WindowCount
{
    DWORD process;
    int windows = 0;
};

} // namespace

static BOOL CALLBACK CountOneWindow(HWND, LPARAM count)
{
    reinterpret_cast<WindowCount*>(count)->windows++;
    return TRUE;
}

static BOOL CALLBACK CountWindowOfProcess(HWND window, LPARAM count)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == reinterpret_cast<WindowCount*>(count)->process) {
        CountOneWindow(window, count);
        EnumChildWindows(window, CountOneWindow, count);
    }
    return TRUE;
}

ProcessObjects ProcessObjects::Of(DWORD process)
{
    ProcessObjects objects;
    if (const HANDLE handle = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, process)) {
        objects.gdiObjects = GdiObjectsOf(handle);
        CloseHandle(handle);
    }
    WindowCount count{process};
    EnumWindows(CountWindowOfProcess, reinterpret_cast<LPARAM>(&count));
    objects.windows = count.windows;
    return objects;
}
