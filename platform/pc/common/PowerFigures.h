// The state of the batteries as a device tells it: the PC's, or a profile's.
#pragma once

#include "platform/ce.h"
#include "platform/pc/common/Scripts.h"

namespace handheld {

// False when the device has no battery to tell of; the status is left alone then. real: null when the PC
// does not know.
bool TellPower(const BatteryScript& script, const SYSTEM_POWER_STATUS* real, SYSTEM_POWER_STATUS_EX& status);

} // namespace handheld
