// The profile that this process runs under.
#pragma once

#include "platform/pc/common/Profile.h"

namespace handheld {

inline constexpr wchar_t profileVariable[] = L"HANDHELD_PROFILE";
inline constexpr wchar_t profileKey[] = L"Software\\Quorvane Handheld";
inline constexpr wchar_t profileValue[] = L"Profile";

// Read at the first call, then kept: the environment variable's file, else the one that the running handheld
// has named in the registry, else profiles\pocketpc.ini beside this module, else the defaults of a Pocket PC.
const Profile& ActiveProfile();

// False when the file cannot be read; the profile is left alone then.
bool LoadProfile(const wchar_t* path, Profile& profile);

} // namespace handheld
