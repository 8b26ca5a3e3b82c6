// Hands the results to whoever runs it: each is the argument of a call.
#include "platform/ce.h"
#include "tests/device/machine/Computations.h"

int ProgramMain(HINSTANCE, HINSTANCE, const wchar_t*, int)
{
    for (const computations::Computation& computation : computations::computations) {
        Sleep(computation.run());
    }
    return 0;
}
