// One function for each section of a profile: takes a line's key, in lower case, and its value.
#pragma once

#include "platform/pc/common/Profile.h"

namespace handheld {

void SetHandheldKey(Profile& profile, const std::wstring& key, std::wstring_view value);
void SetMemoryKey(Profile& profile, const std::wstring& key, std::wstring_view value);
void SetBatteryKey(Profile& profile, const std::wstring& key, std::wstring_view value);
// Of these the key names a path or a program; anything malformed makes the whole line count for nothing.
void AddStorageScript(Profile& profile, const std::wstring& path, std::wstring_view value);
void AddHeapScript(Profile& profile, const std::wstring& program, std::wstring_view value);
void AddProcessScript(Profile& profile, const std::wstring& program, std::wstring_view value);

} // namespace handheld
