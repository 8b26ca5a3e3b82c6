// The platform calls that listing the processes cannot do without, and nothing else.
#pragma once

#include "platform/ce.h"

class BareProcesses
{
    HWND list; // the page's own control
    size_t count = 0;

  public:
    explicit BareProcesses(HWND processList) : list(processList) {}

    void Run();
    size_t Count() const { return count; }
};
