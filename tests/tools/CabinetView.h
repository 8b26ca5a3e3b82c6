// Reads an uncompressed cabinet by its documented layout, independently of the program that made it.
#pragma once

#include "tests/tools/TempFolder.h"

#include <cstdint>
#include <string>
#include <vector>

struct CabinetMember
{
    std::string name;
    std::uint32_t date; // as DOS has it
    std::uint32_t time;
    std::uint32_t attributes;
    Bytes content;
};

// In the order of the cabinet. Throws for a compressed, split or inconsistent cabinet. A signed one is larger
// by the signature and has a reserved area.
std::vector<CabinetMember> ReadCabinet(const Bytes& cabinet);

std::vector<std::string> NamesOf(const std::vector<CabinetMember>& members);
