// The state of the batteries.
#pragma once

#include "platform/ce/Windows.h"

// The platform's names. NOLINTBEGIN(readability-identifier-naming)
struct SYSTEM_POWER_STATUS_EX
{
    BYTE ACLineStatus; // 0 offline, 1 online, 2 backup power, 255 unknown
    BYTE BatteryFlag;
    BYTE BatteryLifePercent; // at most 100; 255: unknown
    BYTE Reserved1;
    DWORD BatteryLifeTime; // seconds; 0xFFFFFFFF: unknown
    DWORD BatteryFullLifeTime;
    BYTE Reserved2;
    BYTE BackupBatteryFlag;
    BYTE BackupBatteryLifePercent;
    BYTE Reserved3;
    DWORD BackupBatteryLifeTime;
    DWORD BackupBatteryFullLifeTime;
};
// NOLINTEND(readability-identifier-naming)

extern "C" {
// False where the system knows nothing of batteries. update: ask the driver, not what it said last.
__declspec(dllimport) BOOL WINAPI GetSystemPowerStatusEx(SYSTEM_POWER_STATUS_EX* status, BOOL update);
}
