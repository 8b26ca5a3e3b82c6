// Processes as they may be opened and ended.
#include <windows.h>

extern "C" HANDLE WINAPI ce_OpenProcess(DWORD access, BOOL inherit, DWORD process)
{
    return OpenProcess(access, inherit, process);
}

extern "C" BOOL WINAPI ce_TerminateProcess(HANDLE process, UINT exitCode)
{
    return TerminateProcess(process, exitCode);
}
