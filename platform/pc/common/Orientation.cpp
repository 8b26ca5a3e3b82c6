// How the handheld is held: a value in the registry, which every process of the handheld can read.
#include "platform/pc/common/Orientation.h"

#include "platform/pc/common/ActiveProfile.h"

#include <windows.h>

namespace handheld {

bool IsOrientation(unsigned long value)
{
    return value == 0 || value == 1 || value == 2 || value == 4;
}

bool IsSideways(int orientation)
{
    return orientation == 1 || orientation == 4;
}

int ScreenOrientation()
{
    DWORD value = 0;
    DWORD size = sizeof value;
    const LSTATUS result = RegGetValueW(HKEY_CURRENT_USER, profileKey, orientationValue, RRF_RT_REG_DWORD,
                                        nullptr, &value, &size);
    return result == ERROR_SUCCESS && IsOrientation(value) ? static_cast<int>(value) : upright;
}

bool KeepOrientation(int orientation)
{
    const auto value = static_cast<DWORD>(orientation);
    return RegSetKeyValueW(HKEY_CURRENT_USER, profileKey, orientationValue, REG_DWORD, &value,
                           sizeof value) == ERROR_SUCCESS;
}

} // namespace handheld
