// Compiled so that exceptions can pass through it.
#include "platform/ce.h"

int ProgramMain(HINSTANCE, HINSTANCE, const wchar_t*, int)
{
    Sleep(1);
    return 0;
}
