// RunningStandIn: a window that a second start takes for the running program's, on a thread of its own.
#pragma once

#include <windows.h>

#include <cstddef>
#include <vector>

class RunningStandIn
{
  public:
    struct Record
    {
        ULONG_PTR kind; // dwData
        std::vector<std::byte> bytes;
    };

    RunningStandIn();
    ~RunningStandIn();
    RunningStandIn(const RunningStandIn&) = delete;
    RunningStandIn& operator=(const RunningStandIn&) = delete;

    HWND Window() const { return window; }
    // Complete once the process that sent them has ended.
    const std::vector<Record>& Records() const { return records; }
    void Forget() { records.clear(); }

  private:
    HANDLE thread = nullptr;
    HANDLE ready = nullptr;
    HWND window = nullptr;
    std::vector<Record> records;

    static DWORD WINAPI Run(void* self);
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
};
