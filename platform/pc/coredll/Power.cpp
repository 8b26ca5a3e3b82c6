// The state of the batteries.
#include "platform/pc/common/ActiveProfile.h"
#include "platform/pc/common/PowerFigures.h"

extern "C" BOOL WINAPI ce_GetSystemPowerStatusEx(SYSTEM_POWER_STATUS_EX* status, BOOL /*update*/)
{
    SYSTEM_POWER_STATUS real = {};
    const bool known = GetSystemPowerStatus(&real) != FALSE;
    if (!handheld::TellPower(handheld::ActiveProfile().battery, known ? &real : nullptr, *status)) {
        SetLastError(ERROR_NOT_SUPPORTED);
        return FALSE;
    }
    return TRUE;
}
