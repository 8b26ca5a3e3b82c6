// What a test or a measurement says to the runner: orders by WM_COPYDATA to its probe, a message-only window.
#pragma once

#include <windows.h>

namespace runner {

// The window's title is the process id in decimal.
inline constexpr wchar_t probeClass[] = L"QvRunnerProbe";

// dwData of WM_COPYDATA. Each writes one line to the run's log and is answered with TRUE.
enum ProbeOrder : ULONG_PTR
{
    MeasureWork = 1, // a ProbedWork: "measured: <name>: ...", and below it the functions
    TellObjects = 2  // nothing: "objects: ...", what the guest has not given back at this moment
};

// Work of the program's, done while the order is carried out: nothing else comes between.
struct ProbedWork
{
    wchar_t name[80];
    HWND window;
    UINT message; // sent so often, and then all that it made invalid is painted; 0: the area is painted
    WPARAM wParam;
    LPARAM lParam;
    RECT area; // of the window's client area, all of it when empty
    DWORD times;
};

} // namespace runner
