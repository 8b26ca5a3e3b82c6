// Keys of the machine's registry hive that a device lets everybody write and a PC does not.
#pragma once

#include <windows.h>

namespace handheld {

// One sub-key for each hardware button.
inline constexpr wchar_t buttonsKey[] = L"Software\\Microsoft\\Shell\\Keys";

// As RegOpenKeyExW and RegCreateKeyExW. Where a plain user may not write the machine's buttons they have a
// stand-in in the user's hive; once that is there it is used for everything.
LONG OpenMachineKey(HKEY root, const wchar_t* path, DWORD options, REGSAM access, HKEY* key);
LONG CreateMachineKey(HKEY root, const wchar_t* path, DWORD reserved, wchar_t* className, DWORD options,
                      REGSAM access, SECURITY_ATTRIBUTES* security, HKEY* key, DWORD* disposition);

} // namespace handheld
