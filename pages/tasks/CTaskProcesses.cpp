// The processes of the running applications.
#include "pages/tasks/CTaskProcesses.h"

#include "framework/Assert.h"
#include "framework/ProcessFacts.h"
#include "lists/SystemIcons.h"

STaskProcess& CTaskProcesses::Find(DWORD id)
{
    for (uint32_t i = 0; i < known.Count(); ++i) {
        if (known.At(i)->id == id) {
            return *known.At(i);
        }
    }
    auto* process = new STaskProcess;
    Assert(process != nullptr, ErrorNoMemory, L"CTaskProcesses::Find", __LINE__);
    process->id = id;
    ProcessImagePath(id, process->path);
    process->shellIcon = SystemIconIndex(process->path);
    known.Append(process);
    return *process;
}

uint32_t CTaskProcesses::HeapBytes(STaskProcess& process)
{
    if (!process.heapsWalked) {
        process.heapBytes = ProcessHeapBytes(process.id);
        process.heapsWalked = true;
    }
    return process.heapBytes;
}
