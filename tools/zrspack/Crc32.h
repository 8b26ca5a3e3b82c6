// The checksum of PNG chunks.
#pragma once

#include <cstdint>
#include <span>

std::uint32_t Crc32(std::span<const std::uint8_t> bytes);
