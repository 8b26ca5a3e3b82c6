// Has a frame of more than a page, which could step over the page that guards the stack.
#include "platform/ce.h"

int ProgramMain(HINSTANCE, HINSTANCE, const wchar_t*, int)
{
    wchar_t path[2560]; // 5 KB
    return GetWindowTextW(nullptr, path, 2560);
}
