// Walks an image's resource directory: types, their items, and one piece of data for each language.
#pragma once

#include "tests/device/image/ImageView.h"

struct ResourceItem
{
    std::uint32_t type;
    std::uint32_t id;
    ImageRange data;
};

// Throws for a directory that is not of three levels or points outside itself.
std::vector<ResourceItem> ReadResources(const ImageView& image);
