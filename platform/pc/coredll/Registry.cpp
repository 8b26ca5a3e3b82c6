// The registry. A program on a device may write everywhere; on the PC a plain user may not write the
// machine's hive.
#include "platform/pc/common/MachineKeys.h"

extern "C" LONG WINAPI ce_RegOpenKeyExW(HKEY root, const wchar_t* path, DWORD options, REGSAM access,
                                        HKEY* key)
{
    return handheld::OpenMachineKey(root, path, options, access, key);
}

extern "C" LONG WINAPI ce_RegCreateKeyExW(HKEY root, const wchar_t* path, DWORD reserved, wchar_t* className,
                                          DWORD options, REGSAM access, SECURITY_ATTRIBUTES* security,
                                          HKEY* key, DWORD* disposition)
{
    return handheld::CreateMachineKey(root, path, reserved, className, options, access, security, key,
                                      disposition);
}
