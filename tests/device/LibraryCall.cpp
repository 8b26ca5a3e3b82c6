// Calls a function of the C library that the device's coredll does not export, but the compiler's own library
// has.
#include "platform/ce.h"

int ProgramMain(HINSTANCE, HINSTANCE, const wchar_t*, int)
{
    char text[] = "a b";
    return strtok(text, " ") != nullptr;
}
