// The files of the cabinet in the order they must have.
#pragma once

#include "tools/cabheader/Installation.h"

#include <string>

inline constexpr const char* xmlInstructionsFile = "_setup.xml";

// One line a file: its name in the cabinet and, separated by a tab, the name of the file it is when that is
// installed.
std::string ListCabinetMembers(const Installation& installation);
