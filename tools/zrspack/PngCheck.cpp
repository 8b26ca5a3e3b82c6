// Checks the structure of a PNG file chunk by chunk.
#include "tools/zrspack/PngCheck.h"

#include "tools/common/Refusal.h"
#include "tools/zrspack/Crc32.h"

#include <algorithm>
#include <array>
#include <string>

static constexpr std::array<std::uint8_t, 8> signature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
static constexpr std::uint32_t largestChunk = 0x7fffffff; // the format's own limit
static constexpr std::uint64_t chunkFrame = 12;           // length, name and checksum
static constexpr std::uint8_t colourPalette = 3;

namespace {

struct Chunk
{
    std::string name;
    ByteView data;
};

// Goes through the chunks and remembers what has been seen.
class PngWalk
{
    ByteView file;
    std::uint64_t position = signature.size();
    PictureInfo info{"PNG", 0, 0};
    std::uint8_t colourType = 0;
    bool palette = false;
    std::uint64_t pixelBytes = 0; // compressed
    std::string previous;         // name of the chunk before

  public:
    explicit PngWalk(ByteView content) : file(content) {}

    PictureInfo Run();

  private:
    Chunk NextChunk();
    void CheckHeader(ByteView data);
    void CheckPalette(ByteView data);
    void CheckPixels(ByteView data);
    void CheckEnd(ByteView data) const;
};

} // namespace

static bool IsLetter(std::uint8_t c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

static bool IsDepthAllowed(std::uint8_t type, std::uint8_t depth)
{
    switch (type) {
    case 0: // grey
        return depth == 1 || depth == 2 || depth == 4 || depth == 8 || depth == 16;
    case colourPalette:
        return depth == 1 || depth == 2 || depth == 4 || depth == 8;
    case 2: // RGB
    case 4: // grey with alpha
    case 6: // RGB with alpha
        return depth == 8 || depth == 16;
    default:
        return false;
    }
}

namespace {

Chunk PngWalk::NextChunk()
{
    if (!file.Has(position, chunkFrame)) {
        throw Refusal("is truncated: the PNG ends without an IEND chunk");
    }
    const std::uint32_t length = file.U32Big(position);
    const ByteView nameBytes = file.Part(position + 4, 4);
    if (!std::all_of(nameBytes.Bytes().begin(), nameBytes.Bytes().end(), IsLetter)) {
        throw Refusal("has a PNG chunk without a valid name");
    }
    const std::string name(nameBytes.Bytes().begin(), nameBytes.Bytes().end());
    if (length > largestChunk || !file.Has(position, chunkFrame + length)) {
        throw Refusal("is truncated: PNG chunk " + name + " is longer than the file");
    }
    // The checksum covers the name and the data.
    const std::uint32_t crc = Crc32(file.Part(position + 4, 4 + std::uint64_t{length}).Bytes());
    if (crc != file.U32Big(position + 8 + length)) {
        throw Refusal("is damaged: the checksum of PNG chunk " + name + " is wrong");
    }
    const ByteView data = file.Part(position + 8, length);
    position += chunkFrame + length;
    return {name, data};
}

void PngWalk::CheckHeader(ByteView data)
{
    if (data.Size() != 13) {
        throw Refusal("has a PNG header of the wrong length");
    }
    info.width = data.U32Big(0);
    info.height = data.U32Big(4);
    CheckDimensions(info.width, info.height);
    colourType = data.U8(9);
    if (!IsDepthAllowed(colourType, data.U8(8))) {
        throw Refusal("has an unknown PNG pixel format");
    }
    if (data.U8(10) != 0 || data.U8(11) != 0 || data.U8(12) > 1) {
        throw Refusal("has an unknown PNG compression, filter or interlace method");
    }
}

void PngWalk::CheckPalette(ByteView data)
{
    // Grey pictures have no palette; a colour type without bit 1 is a grey one.
    if (palette || pixelBytes != 0 || (colourType & 2) == 0) {
        throw Refusal("has a PNG palette in the wrong place");
    }
    if (data.Size() == 0 || data.Size() % 3 != 0 || data.Size() > 768) {
        throw Refusal("has a PNG palette of the wrong length");
    }
    palette = true;
}

void PngWalk::CheckPixels(ByteView data)
{
    if (colourType == colourPalette && !palette) {
        throw Refusal("has no PNG palette");
    }
    if (pixelBytes != 0 && previous != "IDAT") {
        throw Refusal("has PNG pixel data in separate places");
    }
    pixelBytes += data.Size();
}

void PngWalk::CheckEnd(ByteView data) const
{
    if (data.Size() != 0) {
        throw Refusal("has a PNG end chunk that is not empty");
    }
    if (pixelBytes == 0) {
        throw Refusal("has no PNG pixel data");
    }
    if (position != file.Size()) {
        throw Refusal("has bytes after the end of the PNG");
    }
}

PictureInfo PngWalk::Run()
{
    while (true) {
        const Chunk chunk = NextChunk();
        if (previous.empty() != (chunk.name == "IHDR")) {
            throw Refusal(previous.empty() ? "does not begin with a PNG header" : "has two PNG headers");
        }
        if (chunk.name == "IHDR") {
            CheckHeader(chunk.data);
        } else if (chunk.name == "PLTE") {
            CheckPalette(chunk.data);
        } else if (chunk.name == "IDAT") {
            CheckPixels(chunk.data);
        } else if (chunk.name == "IEND") {
            CheckEnd(chunk.data);
            return info;
        } else if (chunk.name[0] >= 'A' && chunk.name[0] <= 'Z') {
            // A capital letter marks a chunk that no decoder may skip.
            throw Refusal("needs the unknown PNG chunk " + chunk.name);
        }
        previous = chunk.name;
    }
}

} // namespace

bool IsPng(ByteView file)
{
    return file.StartsWith(signature);
}

PictureInfo CheckPng(ByteView file)
{
    return PngWalk(file).Run();
}
