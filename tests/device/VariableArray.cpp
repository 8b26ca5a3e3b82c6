// Has an array whose length only the run knows, so that no one can tell how large the frame gets.
#include "platform/ce.h"

int ProgramMain(HINSTANCE, HINSTANCE, const wchar_t*, int showCommand)
{
    wchar_t text[showCommand];
    return GetWindowTextW(nullptr, text, showCommand);
}
