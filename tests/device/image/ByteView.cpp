// Bounds-checked reads.
#include "tests/device/image/ByteView.h"

#include <stdexcept>

ByteView ByteView::Part(std::uint64_t offset, std::uint64_t size) const
{
    if (offset > bytes.size() || size > bytes.size() - offset) {
        throw std::out_of_range("it points outside the bytes it is in");
    }
    return ByteView(bytes.subspan(static_cast<std::size_t>(offset), static_cast<std::size_t>(size)));
}

std::uint32_t ByteView::U16(std::uint64_t offset) const
{
    const auto part = Part(offset, 2).bytes;
    return part[0] | static_cast<std::uint32_t>(part[1]) << 8;
}

std::uint32_t ByteView::U32(std::uint64_t offset) const
{
    const ByteView part = Part(offset, 4);
    return part.U16(0) | part.U16(2) << 16;
}

std::string ByteView::Text(std::uint64_t offset) const
{
    std::string text;
    while (const std::uint8_t byte = Part(offset + text.size(), 1).bytes[0]) {
        text += static_cast<char>(byte);
    }
    return text;
}
