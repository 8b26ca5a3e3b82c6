// Walks an image's import directory with its lookup and address tables.
#pragma once

#include "tests/device/image/ImageView.h"

struct ImportLibrary
{
    std::string name;
    std::uint32_t lookupRva;
    std::uint32_t addressRva;
    bool bound; // has a time stamp or a forwarder chain
    // Without the zeros that end them.
    std::vector<std::uint32_t> lookups;
    std::vector<std::uint32_t> addresses;
};

struct ImportTables
{
    std::vector<ImportLibrary> libraries;
    bool terminated = false; // the directory's last row, and no other, is zero
};

// Throws for what points outside the image.
ImportTables ReadImportTables(const ImageView& image);
