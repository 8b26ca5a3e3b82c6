// Locking the device's keys.
#pragma once

#include "framework/CVireoApp.h"

// Presses the key by which the device locks all others.
void LockKeys(Platform platform);
