// Decodes the one kind of bitmap that the build puts into the container.
#include "tests/tools/BuiltPicture.h"

std::uint32_t WordAt(const Bytes& bytes, std::size_t offset)
{
    std::uint32_t value = 0;
    for (std::size_t i = 4; i-- > 0;) {
        value = value << 8 | bytes.at(offset + i);
    }
    return value;
}

std::optional<BuiltPicture> DecodeBitmap(const Bytes& bytes)
{
    const bool plain = bytes.size() > 54 && bytes[0] == 'B' && bytes[1] == 'M' && WordAt(bytes, 10) == 54 &&
                       WordAt(bytes, 14) == 40 && WordAt(bytes, 26) == (24u << 16 | 1) &&
                       WordAt(bytes, 30) == 0;
    if (!plain) {
        return std::nullopt;
    }
    BuiltPicture picture{WordAt(bytes, 18), WordAt(bytes, 22), {}};
    const std::size_t row = (picture.width * 3 + 3) / 4 * 4;
    if (picture.width > 1000 || picture.height > 1000 || bytes.size() != 54 + row * picture.height) {
        return std::nullopt;
    }
    for (std::size_t y = picture.height; y-- > 0;) {
        for (std::size_t x = 0; x < picture.width; x++) {
            const std::uint8_t* pixel = &bytes[54 + row * y + 3 * x];
            picture.pixels.push_back({pixel[2], pixel[1], pixel[0]});
        }
    }
    return picture;
}
