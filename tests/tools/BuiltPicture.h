// The pictures in the container that the build has made, read without the packer's code.
#pragma once

#include "tests/tools/TempFolder.h"

#include <optional>

struct Rgb
{
    std::uint8_t red;
    std::uint8_t green;
    std::uint8_t blue;

    bool operator==(const Rgb&) const = default;
    // 0 black to 255 white.
    int Lightness() const { return (red * 30 + green * 59 + blue * 11) / 100; }
};

// An uncompressed 24-bit bitmap.
struct BuiltPicture
{
    std::size_t width;
    std::size_t height;
    std::vector<Rgb> pixels; // from the top row

    Rgb At(std::size_t x, std::size_t y) const { return pixels.at(y * width + x); }
};

// Nothing when the bytes are not a bottom-up uncompressed 24-bit bitmap.
std::optional<BuiltPicture> DecodeBitmap(const Bytes& bytes);

std::uint32_t WordAt(const Bytes& bytes, std::size_t offset);
