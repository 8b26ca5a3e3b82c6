// Has an object of static storage that code would have to construct.
#include "platform/ce.h"

static const DWORD started = GetSysColor(0);

int ProgramMain(HINSTANCE, HINSTANCE, const wchar_t*, int)
{
    return static_cast<int>(started);
}
