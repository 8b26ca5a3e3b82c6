// What the linker says of the image: the symbols of the file it was copied from, and how much memory that
// file asks for.
#pragma once

#include "tests/device/image/ByteView.h"

#include <map>

class ElfFile
{
    std::map<std::string, std::uint32_t> symbols;
    std::uint32_t memoryEnd = 0;

  public:
    // Throws for anything but a little-endian file of 32 bits with symbols.
    explicit ElfFile(ByteView content);

    std::uint32_t Symbol(const std::string& name) const { return symbols.at(name); }
    // Behind the last byte of a section that is in memory, zeroed variables included.
    std::uint32_t MemoryEnd() const { return memoryEnd; }
};
