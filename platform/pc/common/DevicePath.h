// Paths of the device on the PC.
#pragma once

#include <string>
#include <string_view>

namespace handheld {

// A device has no drives: a path that begins with a single backslash goes to the root folder of the
// handheld, every other one is the PC's and stays. root: without a backslash at its end.
std::wstring DevicePathBelow(std::wstring_view root, std::wstring_view path);

// The same with the active profile's root, or the drive of the system's folder.
std::wstring DevicePath(std::wstring_view path);

} // namespace handheld
