// Which names and texts the two kinds of instructions and the device take. The checks throw Refusal.
#pragma once

#include <cstddef>
#include <string>

// Printable ASCII, from 1 to this many characters, without blanks at the ends.
void CheckText(const std::string& text, std::size_t longest);
// A file or folder name.
void CheckFileName(const std::string& name);
// The part in front of the point of the files in the cabinet.
void CheckCabinetName(const std::string& name);
// Two names that differ in case only are the same file.
std::string LowerCase(const std::string& name);
