// The command line as a device gives it: without the program's path.
#pragma once

#include <string>
#include <string_view>

namespace handheld {

// What follows the program's path and the blanks behind it. An argument that is quoted as a whole loses its
// quotes, because Wine's launcher and some shells quote one that holds a blank ("193 3*9").
std::wstring CommandTail(std::wstring_view commandLine);

} // namespace handheld
