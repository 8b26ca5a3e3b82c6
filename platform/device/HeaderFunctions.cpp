// What the device's own headers define inline and its libraries therefore do not export.
#include "platform/ce.h"

extern "C" {

// A process calls itself by a constant: the system handle 2, the current process, in the range that begins
// at 64.
HANDLE WINAPI GetCurrentProcess()
{
    return reinterpret_cast<HANDLE>(0x42);
}

// A loaded resource is its address.
void* WINAPI LockResource(HGLOBAL resource)
{
    return resource;
}
}
