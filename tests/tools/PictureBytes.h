// Makes small PNG and BMP files, good ones and ones with a chosen flaw.
#pragma once

#include "tests/tools/TempFolder.h"

#include <string>

void PutU16Little(Bytes& bytes, std::size_t offset, std::uint32_t value);
void PutU32Little(Bytes& bytes, std::size_t offset, std::uint32_t value);
void PutU32Big(Bytes& bytes, std::size_t offset, std::uint32_t value);

Bytes PngSignature();
// Length, name, data and the right checksum.
Bytes PngChunk(const std::string& name, const Bytes& data);
Bytes PngHeader(std::uint32_t width, std::uint32_t height, std::uint8_t depth = 8,
                std::uint8_t colourType = 0);
// A grey 1 x 1 picture whose pixel has this value; a complete file.
Bytes GoodPng(std::uint8_t pixel = 0x80);
// The signature followed by these chunks.
Bytes PngOf(const std::vector<Bytes>& chunks);
// The pixel data of GoodPng as a chunk.
Bytes PngPixels(std::uint8_t pixel = 0x80);

// A 24-bit picture of one colour; a complete file.
Bytes GoodBmp(std::uint32_t width = 2, std::uint32_t height = 2, std::uint8_t value = 0x40);
// An 8-bit picture with a full palette.
Bytes PaletteBmp(std::uint32_t width, std::uint32_t height);
