// Calls a function that the import lists hold.
#include "platform/ce.h"

int ProgramMain(HINSTANCE, HINSTANCE, const wchar_t*, int)
{
    Sleep(1);
    return 0;
}
