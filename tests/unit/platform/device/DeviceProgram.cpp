#include "tests/unit/platform/device/DeviceProgram.h"

#include "platform/ce.h"
#include "tests/unit/platform/device/DeviceLibraries.h"

std::function<int()> deviceProgram;

int DeviceProgramMain(HINSTANCE, HINSTANCE, const wchar_t*, int)
{
    DeviceLibraries::current->Note("the program begins");
    return deviceProgram ? deviceProgram() : 0;
}
