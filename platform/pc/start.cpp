// Start-up of the executable on the PC: the program has no C run-time of its own, as on a device.
#include "platform/ce.h"

extern "C" IMAGE_DOS_HEADER __ImageBase;

extern "C" void ProgramStart()
{
    auto* instance = reinterpret_cast<HINSTANCE>(&__ImageBase);
    const int result = ProgramMain(instance, nullptr, GetCommandLineW(), SW_SHOWNORMAL);
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(result));
}
