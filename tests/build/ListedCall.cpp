// Calls a function that the import lists hold.
#include <windows.h>

extern "C" void ProgramStart()
{
    Sleep(1);
}
