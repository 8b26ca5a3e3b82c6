// Calls a function that the import lists do not hold.
#include <windows.h>

extern "C" void ProgramStart()
{
    Beep(1, 1);
}
