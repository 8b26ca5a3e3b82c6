// The state of memory and storage.
#include <windows.h>

#include <algorithm>

// The device counts in 32 bits.
static SIZE_T Saturated(unsigned long long bytes)
{
    return static_cast<SIZE_T>(std::min(bytes, 0xFFFFFFFFULL));
}

extern "C" void WINAPI ce_GlobalMemoryStatus(MEMORYSTATUS* status)
{
    MEMORYSTATUSEX real = {};
    real.dwLength = sizeof real;
    GlobalMemoryStatusEx(&real);
    *status = {sizeof *status,
               real.dwMemoryLoad,
               Saturated(real.ullTotalPhys),
               Saturated(real.ullAvailPhys),
               Saturated(real.ullTotalPageFile),
               Saturated(real.ullAvailPageFile),
               Saturated(real.ullTotalVirtual),
               Saturated(real.ullAvailVirtual)};
}

extern "C" BOOL WINAPI ce_GetDiskFreeSpaceExW(const wchar_t* path, ULARGE_INTEGER* available,
                                              ULARGE_INTEGER* total, ULARGE_INTEGER* free)
{
    return GetDiskFreeSpaceExW(path, available, total, free);
}
