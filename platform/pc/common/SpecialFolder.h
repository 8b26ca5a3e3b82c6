// The shell's special folders.
#pragma once

#include <string>

namespace handheld {

// A folder by its CSIDL_ number; false when there is none. The Start menu is the profile's, a path of the
// device, or else the PC's own as every other folder is.
bool FindSpecialFolder(int folder, std::wstring& path);

} // namespace handheld
