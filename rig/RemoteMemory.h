// RemoteMemory: a block of memory in another process, for messages whose structures Windows does not carry
// across.
#pragma once

#include <windows.h>

namespace rig {

class RemoteMemory
{
    HANDLE process = nullptr;
    void* address = nullptr;

  public:
    // In the process of a window. Address() is null when that process cannot be opened.
    RemoteMemory(HWND window, size_t size);
    ~RemoteMemory();
    RemoteMemory(const RemoteMemory&) = delete;
    RemoteMemory& operator=(const RemoteMemory&) = delete;

    void* Address() const { return address; }
    // Both work from the block's beginning plus an offset.
    bool Write(const void* data, size_t size, size_t offset = 0) const;
    bool Read(void* data, size_t size, size_t offset = 0) const;
};

} // namespace rig
