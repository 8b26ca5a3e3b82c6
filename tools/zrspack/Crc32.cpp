// The checksum of PNG chunks: CRC-32 with the reversed polynomial 0xedb88320.
#include "tools/zrspack/Crc32.h"

#include <array>

static constexpr std::array<std::uint32_t, 256> MakeTable()
{
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t i = 0; i < table.size(); i++) {
        std::uint32_t value = i;
        for (int bit = 0; bit < 8; bit++) {
            value = value & 1 ? value >> 1 ^ 0xedb88320u : value >> 1;
        }
        table[i] = value;
    }
    return table;
}

std::uint32_t Crc32(std::span<const std::uint8_t> bytes)
{
    static constexpr std::array<std::uint32_t, 256> table = MakeTable();
    std::uint32_t crc = 0xffffffff;
    for (const std::uint8_t byte : bytes) {
        crc = table[(crc ^ byte) & 0xff] ^ crc >> 8;
    }
    return ~crc;
}
