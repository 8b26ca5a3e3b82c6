// Calls the functions of scripts/package.sh, which ./device makes its packages with.
#pragma once

#include "tests/tools/Program.h"
#include "tests/tools/TempFolder.h"

#include <string>
#include <vector>

// call: the function and its arguments. setup: shell commands to run first ("umask 077").
ProgramResult RunPackaging(const std::vector<std::string>& call, const std::string& setup = ":");

// Stand-ins for what the build makes, of several data blocks, under their names.
void PutStandIns(const TempFolder& folder);
// The cabinet of the real description from the files of this folder, made in a work folder of its own.
ProgramResult MakeCabinet(const TempFolder& files, const std::string& cabinet, const std::string& setup = ":",
                          const std::vector<std::string>& signing = {});

Bytes Noise(std::size_t size, std::uint32_t seed);
