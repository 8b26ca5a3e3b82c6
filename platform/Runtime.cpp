// The C++ run-time that the executable has: memory from the C library's heap, null when there is none.
#include "platform/ce.h"

extern "C" void __cxa_pure_virtual()
{
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(-1));
}

void* operator new(size_t size)
{
    return malloc(size);
}

void* operator new[](size_t size)
{
    return malloc(size);
}

void operator delete(void* block) noexcept
{
    free(block);
}

void operator delete[](void* block) noexcept
{
    free(block);
}

void operator delete(void* block, size_t) noexcept
{
    free(block);
}

void operator delete[](void* block, size_t) noexcept
{
    free(block);
}
