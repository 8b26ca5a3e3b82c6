// The state of the batteries.
#include "platform/ce.h"

extern "C" BOOL WINAPI ce_GetSystemPowerStatusEx(SYSTEM_POWER_STATUS_EX* status, BOOL /*update*/)
{
    SYSTEM_POWER_STATUS real = {};
    if (!GetSystemPowerStatus(&real)) {
        return FALSE;
    }
    *status = {};
    status->ACLineStatus = real.ACLineStatus;
    status->BatteryFlag = real.BatteryFlag;
    status->BatteryLifePercent = real.BatteryLifePercent;
    status->BatteryLifeTime = real.BatteryLifeTime;
    status->BatteryFullLifeTime = real.BatteryFullLifeTime;
    status->BackupBatteryFlag = 255;
    status->BackupBatteryLifePercent = 255;
    status->BackupBatteryLifeTime = 0xFFFFFFFF;
    status->BackupBatteryFullLifeTime = 0xFFFFFFFF;
    return TRUE;
}
