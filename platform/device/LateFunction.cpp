// LateFunction: a function that not every device's library exports, looked up when the program starts.
#include "platform/device/LateFunction.h"

void LateFunction::LookUp()
{
    // Never freed: a library that a process has called stays with it.
    HMODULE module = LoadLibraryW(wanted.library);
    if (module) {
        const wchar_t* name = wanted.name ? wanted.name : MAKEINTRESOURCEW(wanted.number);
        address = reinterpret_cast<void*>(GetProcAddressW(module, name));
    }
    if (!address && loss && (!isMissed || isMissed())) {
        MessageBoxW(nullptr, loss, L"Quorvane", MB_OK | MB_ICONWARNING);
    }
}
