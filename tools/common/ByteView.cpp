// A bounds-checked look at the bytes of a file.
#include "tools/common/ByteView.h"

#include "tools/common/Refusal.h"

#include <algorithm>

bool ByteView::Has(std::uint64_t offset, std::uint64_t size) const
{
    return offset <= bytes.size() && size <= bytes.size() - offset;
}

ByteView ByteView::Part(std::uint64_t offset, std::uint64_t size) const
{
    if (!Has(offset, size)) {
        throw Refusal("is truncated");
    }
    return ByteView(bytes.subspan(static_cast<std::size_t>(offset), static_cast<std::size_t>(size)));
}

std::uint8_t ByteView::U8(std::uint64_t offset) const
{
    return Part(offset, 1).bytes[0];
}

std::uint16_t ByteView::U16Little(std::uint64_t offset) const
{
    const auto part = Part(offset, 2).bytes;
    return static_cast<std::uint16_t>(part[0] | part[1] << 8);
}

std::uint32_t ByteView::U32Little(std::uint64_t offset) const
{
    const auto part = Part(offset, 4).bytes;
    return part[0] | std::uint32_t{part[1]} << 8 | std::uint32_t{part[2]} << 16 |
           std::uint32_t{part[3]} << 24;
}

std::uint32_t ByteView::U32Big(std::uint64_t offset) const
{
    const auto part = Part(offset, 4).bytes;
    return std::uint32_t{part[0]} << 24 | std::uint32_t{part[1]} << 16 | std::uint32_t{part[2]} << 8 |
           part[3];
}

bool ByteView::StartsWith(std::span<const std::uint8_t> prefix) const
{
    return bytes.size() >= prefix.size() && std::equal(prefix.begin(), prefix.end(), bytes.begin());
}
