// The file-name patterns of a device's file search.
#pragma once

#include <string_view>

namespace handheld {

// Whether a file name matches a pattern of literal characters, '*' (any run, also none) and '?' (one
// character), letter case aside. Unlike the PC's search it is exact: "*.lnk" does not match "a.lnkx". "*.*"
// matches every name.
bool MatchesPattern(std::wstring_view name, std::wstring_view pattern);

} // namespace handheld
