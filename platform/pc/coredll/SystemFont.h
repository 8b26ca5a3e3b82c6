// The stock system font of a device.
#pragma once

#include <windows.h>

// Lives as long as the process.
HFONT SystemFont();
