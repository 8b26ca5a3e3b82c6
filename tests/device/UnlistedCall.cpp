// Calls a function that the import lists do not hold.
#include "platform/ce.h"

int ProgramMain(HINSTANCE, HINSTANCE, const wchar_t*, int)
{
    return Beep(1, 1);
}
