// A bounds-checked look at the bytes of a file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

// Offsets and sizes are 64 bits wide, so sums of 32-bit fields from a hostile file cannot wrap. Reading
// outside the bytes throws Refusal: a check that forgot to ask Has() first still refuses the file.
class ByteView
{
    std::span<const std::uint8_t> bytes;

  public:
    explicit ByteView(std::span<const std::uint8_t> content) : bytes(content) {}

    std::uint64_t Size() const { return bytes.size(); }
    bool Has(std::uint64_t offset, std::uint64_t size) const;
    ByteView Part(std::uint64_t offset, std::uint64_t size) const;
    std::span<const std::uint8_t> Bytes() const { return bytes; }

    std::uint8_t U8(std::uint64_t offset) const;
    std::uint16_t U16Little(std::uint64_t offset) const;
    std::uint32_t U32Little(std::uint64_t offset) const;
    std::uint32_t U32Big(std::uint64_t offset) const;
    bool StartsWith(std::span<const std::uint8_t> prefix) const;
};
