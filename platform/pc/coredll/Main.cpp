// Start of the coredll substitute in a process.
#include <windows.h>

// A device has no drives and no current folder: "\Windows" names one place. Here it is below the current
// drive's root, so every program works from drive C whatever drive it was started from.
extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void*)
{
    if (reason == DLL_PROCESS_ATTACH) {
        DisableThreadLibraryCalls(instance);
        SetCurrentDirectoryW(L"C:\\");
    }
    return TRUE;
}
