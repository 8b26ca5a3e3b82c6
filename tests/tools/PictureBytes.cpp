// Makes small PNG and BMP files by hand, so that nothing here depends on the packer's own knowledge of the
// formats.
#include "tests/tools/PictureBytes.h"

static void Append(Bytes& target, const Bytes& more)
{
    target.insert(target.end(), more.begin(), more.end());
}

void PutU16Little(Bytes& bytes, std::size_t offset, std::uint32_t value)
{
    bytes.at(offset) = static_cast<std::uint8_t>(value);
    bytes.at(offset + 1) = static_cast<std::uint8_t>(value >> 8);
}

void PutU32Little(Bytes& bytes, std::size_t offset, std::uint32_t value)
{
    PutU16Little(bytes, offset, value);
    PutU16Little(bytes, offset + 2, value >> 16);
}

void PutU32Big(Bytes& bytes, std::size_t offset, std::uint32_t value)
{
    for (std::size_t i = 0; i < 4; i++) {
        bytes.at(offset + i) = static_cast<std::uint8_t>(value >> (24 - 8 * i));
    }
}

// Bit by bit, without a table.
static std::uint32_t Checksum(const Bytes& bytes)
{
    std::uint32_t crc = 0xffffffff;
    for (const std::uint8_t byte : bytes) {
        crc ^= byte;
        for (int bit = 0; bit < 8; bit++) {
            crc = crc & 1 ? crc >> 1 ^ 0xedb88320u : crc >> 1;
        }
    }
    return ~crc;
}

Bytes PngSignature()
{
    return {0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a};
}

Bytes PngChunk(const std::string& name, const Bytes& data)
{
    Bytes covered(name.begin(), name.end());
    Append(covered, data);
    Bytes chunk(4);
    PutU32Big(chunk, 0, static_cast<std::uint32_t>(data.size()));
    Append(chunk, covered);
    chunk.resize(chunk.size() + 4);
    PutU32Big(chunk, chunk.size() - 4, Checksum(covered));
    return chunk;
}

Bytes PngHeader(std::uint32_t width, std::uint32_t height, std::uint8_t depth, std::uint8_t colourType)
{
    Bytes data(13);
    PutU32Big(data, 0, width);
    PutU32Big(data, 4, height);
    data[8] = depth;
    data[9] = colourType;
    return PngChunk("IHDR", data);
}

Bytes PngPixels(std::uint8_t pixel)
{
    // One stored deflate block with the row's filter byte and the pixel, then the Adler checksum of the two.
    const std::uint8_t sum = static_cast<std::uint8_t>(1 + pixel);
    const std::uint8_t carry = static_cast<std::uint8_t>((1 + pixel) >> 8);
    const std::uint32_t second = 1u + 1u + pixel;
    return PngChunk("IDAT",
                    {0x78, 0x01, 0x01, 0x02, 0x00, 0xfd, 0xff, 0x00, pixel,
                     static_cast<std::uint8_t>(second >> 8), static_cast<std::uint8_t>(second), carry, sum});
}

Bytes PngOf(const std::vector<Bytes>& chunks)
{
    Bytes file = PngSignature();
    for (const Bytes& chunk : chunks) {
        Append(file, chunk);
    }
    return file;
}

Bytes GoodPng(std::uint8_t pixel)
{
    return PngOf({PngHeader(1, 1), PngPixels(pixel), PngChunk("IEND", {})});
}

static Bytes Bmp(std::uint32_t width, std::uint32_t height, std::uint32_t bits, std::uint32_t palette)
{
    const std::uint32_t row = (width * bits + 31) / 32 * 4;
    const std::uint32_t pixels = 54 + palette * 4;
    Bytes file(pixels + row * height);
    file[0] = 'B';
    file[1] = 'M';
    PutU32Little(file, 2, static_cast<std::uint32_t>(file.size()));
    PutU32Little(file, 10, pixels);
    PutU32Little(file, 14, 40);
    PutU32Little(file, 18, width);
    PutU32Little(file, 22, height);
    PutU16Little(file, 26, 1);
    PutU16Little(file, 28, bits);
    PutU32Little(file, 34, row * height);
    return file;
}

Bytes GoodBmp(std::uint32_t width, std::uint32_t height, std::uint8_t value)
{
    Bytes file = Bmp(width, height, 24, 0);
    for (std::size_t i = 54; i < file.size(); i++) {
        file[i] = value;
    }
    return file;
}

Bytes PaletteBmp(std::uint32_t width, std::uint32_t height)
{
    return Bmp(width, height, 8, 256);
}
