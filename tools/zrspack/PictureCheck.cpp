// Tells the picture formats apart by their signatures, never by the file's name.
#include "tools/zrspack/PictureCheck.h"

#include "tools/common/Refusal.h"
#include "tools/zrspack/BmpCheck.h"
#include "tools/zrspack/PngCheck.h"

#include <string>

PictureInfo CheckPicture(ByteView file)
{
    if (file.Size() == 0) {
        throw Refusal("is empty");
    }
    if (IsPng(file)) {
        return CheckPng(file);
    }
    if (IsBmp(file)) {
        return CheckBmp(file);
    }
    throw Refusal("is neither a PNG nor a BMP file");
}

void CheckDimensions(std::uint64_t width, std::uint64_t height)
{
    static constexpr std::uint64_t largest = 4096;
    if (width == 0 || height == 0 || width > largest || height > largest) {
        throw Refusal("has an impossible size of " + std::to_string(width) + " x " + std::to_string(height) +
                      " pixels");
    }
}
