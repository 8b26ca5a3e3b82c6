// What a new Start menu begins with.
#pragma once

#include <string>

namespace handheld {

// Puts shortcuts to those of a few well-known programs that are there into a Start menu, a folder of the PC
// that is made if need be. Only once for each such folder, which the registry key below HKEY_CURRENT_USER
// tells, so that what the user has taken away stays away; what is there is left alone. ownFolder: where the
// handheld's own programs are.
void FillStartMenuOnce(const std::wstring& menu, const std::wstring& ownFolder, const wchar_t* markKey);

} // namespace handheld
