// The processes of the system.
#include "pages/procs/ProcessSnapshot.h"

#include "framework/Assert.h"
#include "framework/ProcessFacts.h"
#include "lists/SystemIcons.h"

static constexpr DWORD snapshotFlags = TH32CS_SNAPPROCESS | TH32CS_SNAPNOHEAPS;
static_assert(snapshotFlags == 0x40000002);
// The place that the fatal reports name.
static constexpr const wchar_t* method = L"CViewProcs::FillContents";
static constexpr int snapshotLine = 691;
static constexpr int firstProcessLine = 702;

static SProcInfo* Describe(const PROCESSENTRY32& entry)
{
    auto* process = new SProcInfo;
    Assert(process != nullptr, ErrorNoMemory, method, __LINE__);
    process->name = entry.szExeFile;
    process->id = entry.th32ProcessID;
    process->threadCount = entry.cntThreads;
    CStr path;
    ProcessImagePath(process->id, path);
    process->iconIndex = SystemIconIndex(path);
    process->heapBytes = ProcessHeapBytes(process->id);
    return process;
}

void TakeProcessSnapshot(CRecords<SProcInfo>& processes)
{
    processes.Clear();
    HANDLE snapshot = CreateToolhelp32Snapshot(snapshotFlags, 0);
    AssertText(snapshot != INVALID_HANDLE_VALUE, L"CreateToolhelp32Snapshot failed", method, snapshotLine);
    PROCESSENTRY32 entry = {};
    entry.dwSize = sizeof entry;
    const BOOL any = Process32First(snapshot, &entry);
    if (!any) {
        CloseHandle(snapshot);
    }
    AssertText(any, L"Process32First failed", method, firstProcessLine);
    do {
        processes.Append(Describe(entry));
    } while (Process32Next(snapshot, &entry));
    CloseToolhelp32Snapshot(snapshot);
}

bool IsTakenByAnother(const SProcIdentity& process)
{
    HANDLE snapshot = CreateToolhelp32Snapshot(snapshotFlags, 0);
    if (snapshot == INVALID_HANDLE_VALUE) {
        return true;
    }
    PROCESSENTRY32 entry = {};
    entry.dwSize = sizeof entry;
    BOOL more = Process32First(snapshot, &entry);
    bool taken = !more;
    while (more && entry.th32ProcessID != process.id) {
        more = Process32Next(snapshot, &entry);
    }
    if (more) {
        taken = process.name.CompareNoCase(entry.szExeFile) != 0;
    }
    CloseToolhelp32Snapshot(snapshot);
    return taken;
}
