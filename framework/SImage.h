// An image as the container hands it out: decoded on request, drawn by the imaging library.
#pragma once

#include "platform/ce.h"

struct SImage
{
    IImage* image;
    uint32_t width; // pixels; 0 when the image does not tell
    uint32_t height;
    uint32_t physicalWidth; // 0.01 mm; 0 when the image does not tell
    uint32_t physicalHeight;
};
