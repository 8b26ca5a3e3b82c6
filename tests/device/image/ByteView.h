// Little-endian reads of a file in memory, none of them outside it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

class ByteView
{
    std::span<const std::uint8_t> bytes;

  public:
    explicit ByteView(std::span<const std::uint8_t> content) : bytes(content) {}

    std::size_t Size() const { return bytes.size(); }
    // These throw std::out_of_range.
    ByteView Part(std::uint64_t offset, std::uint64_t size) const;
    std::uint32_t U16(std::uint64_t offset) const;
    std::uint32_t U32(std::uint64_t offset) const;
    // Up to the zero byte, which has to be there.
    std::string Text(std::uint64_t offset) const;
};
