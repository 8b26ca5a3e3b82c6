// Runs the packer as the build does and gives what came of it.
#pragma once

#include "tests/tools/Program.h"

using PackerResult = ProgramResult;

PackerResult RunPacker(const std::vector<std::string>& arguments, std::size_t largestFile = 0);
