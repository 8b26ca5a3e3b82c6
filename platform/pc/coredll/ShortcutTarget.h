// Where a shortcut leads.
#pragma once

#include <string>

// The path that a .lnk file names, in the device's text form or the PC's binary one; empty when it cannot be
// told.
std::wstring ShortcutTarget(const wchar_t* shortcut);
