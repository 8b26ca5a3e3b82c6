// A profile of a test's own on the session's screen.
#pragma once

#include <string>
#include <vector>

// The section [handheld] with what the running handheld's profile says of its screen; keys of that section
// may follow.
std::wstring ScreenOfSession();

// The programs that are started from now on run under this profile, which becomes a file of that path.
void UseProfile(const std::wstring& path, const std::wstring& text);
// They run under the session's again.
void UseSessionProfile();

std::vector<unsigned char> Utf8(const std::wstring& text);
