// Reads an input file whole.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Takes regular files of at most 16 MiB only: a pipe or a device could block the build or never end. Throws
// Refusal.
std::vector<std::uint8_t> ReadInputFile(const std::string& path);
