// The state of the batteries as a device tells it.
#include "platform/pc/common/PowerFigures.h"

namespace handheld {

static constexpr BYTE unknown = 255;
static constexpr DWORD unknownTime = 0xFFFFFFFF;
static constexpr BYTE noBattery = 128; // bit of BatteryFlag, also of its "unknown"

static bool HasBattery(const SYSTEM_POWER_STATUS* real)
{
    return real && (real->BatteryFlag & noBattery) == 0;
}

static void Script(const BatteryScript& script, SYSTEM_POWER_STATUS_EX& status)
{
    status.ACLineStatus = script.lineStatus.value_or(status.ACLineStatus);
    if (script.percent) {
        status.BatteryFlag = unknown; // no longer that there is none
        status.BatteryLifePercent = *script.percent;
    }
    status.BatteryLifeTime = script.life.value_or(status.BatteryLifeTime);
    status.BatteryFullLifeTime = script.fullLife.value_or(status.BatteryFullLifeTime);
    status.BackupBatteryLifePercent = script.backupPercent.value_or(status.BackupBatteryLifePercent);
}

bool TellPower(const BatteryScript& script, const SYSTEM_POWER_STATUS* real, SYSTEM_POWER_STATUS_EX& status)
{
    const bool scripted = !script.onlyWhenMissing || !HasBattery(real);
    if (scripted && !script.present) {
        return false;
    }
    const bool anyFigure =
        script.percent || script.lineStatus || script.life || script.fullLife || script.backupPercent;
    if (!real && !(scripted && anyFigure)) {
        return false;
    }
    // No PC has a backup battery.
    status = {};
    status.ACLineStatus = real ? real->ACLineStatus : unknown;
    status.BatteryFlag = real ? real->BatteryFlag : unknown;
    status.BatteryLifePercent = real ? real->BatteryLifePercent : unknown;
    status.BatteryLifeTime = real ? real->BatteryLifeTime : unknownTime;
    status.BatteryFullLifeTime = real ? real->BatteryFullLifeTime : unknownTime;
    status.BackupBatteryFlag = unknown;
    status.BackupBatteryLifePercent = unknown;
    status.BackupBatteryLifeTime = unknownTime;
    status.BackupBatteryFullLifeTime = unknownTime;
    if (scripted) {
        Script(script, status);
    }
    return true;
}

} // namespace handheld
