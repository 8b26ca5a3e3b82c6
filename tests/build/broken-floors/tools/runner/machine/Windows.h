// The machine is the same on every system.
#include <windows.h>
