// RemoteMemory: a block of memory in another process, for messages whose structures Windows does not carry
// across.
#include "rig/RemoteMemory.h"

#include "rig/Desktop.h"

namespace rig {

RemoteMemory::RemoteMemory(HWND window, size_t size)
{
    process =
        OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, ProcessOf(window));
    if (process) {
        address = VirtualAllocEx(process, nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    }
}

RemoteMemory::~RemoteMemory()
{
    if (address) {
        VirtualFreeEx(process, address, 0, MEM_RELEASE);
    }
    if (process) {
        CloseHandle(process);
    }
}

bool RemoteMemory::Write(const void* data, size_t size, size_t offset) const
{
    return address && WriteProcessMemory(process, static_cast<char*>(address) + offset, data, size, nullptr);
}

bool RemoteMemory::Read(void* data, size_t size, size_t offset) const
{
    return address && ReadProcessMemory(process, static_cast<char*>(address) + offset, data, size, nullptr);
}

} // namespace rig
