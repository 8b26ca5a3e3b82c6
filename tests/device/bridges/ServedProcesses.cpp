// Processes, their modules and heaps, and what the system says of the device.
#include "tests/device/bridges/Served.h"

static constexpr DWORD stillActive = 259;

// 0 when it is not there.
static DWORD OwnProcess()
{
    const ServedPath path;
    PROCESSENTRY32 entry = {};
    entry.dwSize = sizeof entry;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS | TH32CS_SNAPNOHEAPS, 0);
    DWORD id = 0;
    for (BOOL more = Process32First(snapshot, &entry); more; more = Process32Next(snapshot, &entry)) {
        if (_wcsicmp(entry.szExeFile, path.Name()) == 0) {
            id = entry.th32ProcessID;
        }
    }
    Expect(CloseToolhelp32Snapshot(snapshot));
    // The other way to close one.
    Expect(CloseHandle(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS | TH32CS_SNAPNOHEAPS, 0)));
    return id;
}

static void AskModules(DWORD process)
{
    const ServedPath path;
    MODULEENTRY32 module = {};
    module.dwSize = sizeof module;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPMODULE | TH32CS_SNAPNOHEAPS, process);
    Expect(Module32First(snapshot, &module));
    Expect(_wcsicmp(module.szModule, path.Name()) == 0 && _wcsicmp(module.szExePath, path.text) == 0);
    bool isLibraryThere = false;
    while (Module32Next(snapshot, &module)) {
        isLibraryThere = isLibraryThere || _wcsicmp(module.szModule, L"coredll.dll") == 0;
    }
    Expect(isLibraryThere);
    Expect(CloseToolhelp32Snapshot(snapshot));
}

void AskProcesses()
{
    const DWORD id = OwnProcess();
    Expect(id != 0);
    AskModules(id);
    const HANDLE process = OpenProcess(SYNCHRONIZE | PROCESS_TERMINATE, FALSE, id);
    DWORD code = 0;
    Expect(process != nullptr);
    Expect(GetExitCodeProcess(process, &code) && code == stillActive);
    Expect(WaitForSingleObject(process, 0) == WAIT_TIMEOUT);
    Expect(CloseHandle(process));
    Expect(OpenProcess(SYNCHRONIZE, FALSE, 0x7FFFFFF0) == nullptr);
}

static DWORD HeapBytes(DWORD process)
{
    HEAPLIST32 list = {};
    list.dwSize = sizeof list;
    HEAPENTRY32 entry = {};
    entry.dwSize = sizeof entry;
    DWORD bytes = 0;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPHEAPLIST, process);
    for (BOOL heap = Heap32ListFirst(snapshot, &list); heap; heap = Heap32ListNext(snapshot, &list)) {
        BOOL more = Heap32First(snapshot, &entry, list.th32ProcessID, list.th32HeapID);
        for (; more; more = Heap32Next(snapshot, &entry)) {
            bytes += entry.dwBlockSize;
        }
    }
    Expect(CloseToolhelp32Snapshot(snapshot));
    return bytes;
}

// Its own heap is the one that it allocates from.
void AskHeap()
{
    const DWORD own = OwnProcess();
    const DWORD before = HeapBytes(own);
    void* block = LocalAlloc(LPTR, 5000);
    Expect(HeapBytes(own) == before + 5000);
    Expect(HeapBytes(0) == before + 5000);
    LocalFree(block);
    Expect(HeapBytes(own) == before);
}

void AskDevice()
{
    MEMORYSTATUS memory = {};
    memory.dwLength = sizeof memory;
    GlobalMemoryStatus(&memory);
    Expect(memory.dwMemoryLoad <= 100 && memory.dwTotalPhys > 0 && memory.dwAvailPhys <= memory.dwTotalPhys);
    SYSTEM_POWER_STATUS_EX power;
    Expect(GetSystemPowerStatusEx(&power, TRUE));
    Expect(power.BatteryLifePercent <= 100 || power.BatteryLifePercent == 255);
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof version;
    Expect(GetVersionExW(&version) && version.dwMajorVersion == 5);
    Expect(version.dwPlatformId == VER_PLATFORM_WIN32_CE);
    DEVMODEW mode = {};
    mode.dmSize = sizeof mode;
    mode.dmFields = DM_DISPLAYORIENTATION;
    mode.dmDisplayOrientation = 77;
    Expect(ChangeDisplaySettingsEx(nullptr, &mode, nullptr, CDS_TEST, nullptr) == DISP_CHANGE_SUCCESSFUL);
    Expect(mode.dmDisplayOrientation == DMDO_0);
}
