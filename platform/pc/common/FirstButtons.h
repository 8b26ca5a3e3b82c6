// What the hardware buttons of a new handheld start.
#pragma once

namespace handheld {

// Gives the buttons names, commands and reset values in the registry where there is no key for them yet. Only
// once, which the registry key below HKEY_CURRENT_USER tells, so that what the user has taken away stays
// away.
void FillButtonsOnce(const wchar_t* markKey);

} // namespace handheld
