// Takes memory from the stack at run time.
#include "platform/ce.h"

int ProgramMain(HINSTANCE, HINSTANCE, const wchar_t*, int showCommand)
{
    auto* text = static_cast<wchar_t*>(__builtin_alloca(static_cast<size_t>(showCommand)));
    return GetWindowTextW(nullptr, text, showCommand);
}
