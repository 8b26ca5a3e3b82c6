// The platform calls that listing the processes cannot do without, and nothing else.
#include "bench/page/BareProcesses.h"

#include "bench/page/BareProcess.h"

void BareProcesses::Run()
{
    SendMessageW(list, LVM_GETSELECTIONMARK, 0, 0);
    count = 0;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS | TH32CS_SNAPNOHEAPS, 0);
    PROCESSENTRY32 entry;
    entry.dwSize = sizeof(entry);
    for (BOOL more = Process32First(snapshot, &entry); more; more = Process32Next(snapshot, &entry)) {
        AskBareProcess(entry.th32ProcessID);
        ++count;
    }
    CloseToolhelp32Snapshot(snapshot);
    SendMessageW(list, LVM_SETITEMCOUNT, count, 0);
}
