// The binary instructions (file number 000), which the installer of a Pocket PC reads.
#pragma once

#include "tools/cabheader/Installation.h"

#include <cstdint>
#include <vector>

std::vector<std::uint8_t> WriteBinaryInstructions(const Installation& installation);
