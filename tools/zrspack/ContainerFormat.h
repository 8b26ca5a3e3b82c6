// The layout of a picture container: little-endian fields, packed.
#pragma once

#include <array>
#include <cstdint>

namespace container_format {
inline constexpr std::array<std::uint8_t, 7> magic = {'Q', 'V', '_', 'Z', 'R', 'S', 0};
inline constexpr std::uint32_t version = 1;
inline constexpr std::uint32_t headerWords = 3;
inline constexpr std::uint64_t versionOffset = 7;
inline constexpr std::uint64_t wordsOffset = 11;
inline constexpr std::uint64_t countOffset = 23;
inline constexpr std::uint64_t directoryOffset = 27;
inline constexpr std::uint64_t recordSize = 20; // id, offset, size, two reserved words
} // namespace container_format
