// One figure of the table: how much work a piece of the program's is, in units that no machine's speed is in.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace counts {

struct Figure
{
    std::string name;
    std::uint64_t instructions = 0;
    std::uint64_t imports = 0;          // calls of the platform
    std::vector<std::string> functions; // those with the most instructions, as "<count> <name>"
};

} // namespace counts
