// The table of a process's GDI objects: the system shares it with every process, and Wine keeps it in the
// same place. GetGuiResources, which would tell the number, is a stub in Wine 8.0.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

inline constexpr size_t gdiTableInPeb = 0xF8;
inline constexpr size_t gdiEntryCount = 0x10000;

struct GdiEntry
{
    uint64_t object;
    uint32_t owner;
    uint16_t unique;
    uint8_t type; // 0: free
    uint8_t flags;
    uint64_t userPointer;
};
static_assert(sizeof(GdiEntry) == 24);

// The number of each type of object.
using GdiCounts = std::array<int, 256>;
GdiCounts CountGdiObjects(const GdiEntry* table);
