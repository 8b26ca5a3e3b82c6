// Where the program keeps its settings.
#pragma once

#include "platform/ce.h"

inline constexpr uint32_t settingsKeyPathSize = 255; // characters, terminator included
using SettingsKeyPath = wchar_t[settingsKeyPathSize];

// Writes the path of the settings below HKEY_CURRENT_USER and returns it. It is made at run time: the
// executable does not hold it as text.
const wchar_t* MakeSettingsKeyPath(SettingsKeyPath& path);
