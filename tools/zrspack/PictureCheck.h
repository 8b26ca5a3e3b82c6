// Decides whether a file is a picture that the handheld's imaging library can be expected to decode.
#pragma once

#include "tools/common/ByteView.h"

#include <cstdint>

struct PictureInfo
{
    const char* format;  // "PNG" or "BMP"
    std::uint32_t width; // pixels
    std::uint32_t height;
};

// Throws Refusal with the reason, without a file name.
PictureInfo CheckPicture(ByteView file);

// Refuses sizes no screen of the program's devices has a use for: 0, or more than 4096 pixels.
void CheckDimensions(std::uint64_t width, std::uint64_t height);
