// Where the handheld's own programs are.
#pragma once

#include <string>

// The folder of handheld.exe, without a backslash at its end; empty when it cannot be told.
std::wstring OwnFolder();
