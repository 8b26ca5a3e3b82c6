// Checks the structure of a BMP file.
#include "tools/zrspack/BmpCheck.h"

#include "tools/common/Refusal.h"

#include <array>
#include <string>

static constexpr std::array<std::uint8_t, 2> signature = {'B', 'M'};
static constexpr std::uint64_t fileHeaderSize = 14;
static constexpr std::uint32_t infoHeaderSize = 40; // BITMAPINFOHEADER; the later headers begin with it
static constexpr std::uint32_t compressionNone = 0;
static constexpr std::uint32_t compressionBitFields = 3;

namespace {

struct BmpHeader
{
    std::uint64_t pixelOffset; // from the start of the file
    std::uint32_t headerSize;
    std::int64_t width;
    std::int64_t height; // negative: the first row is the top one
    std::uint32_t bitsPerPixel;
    std::uint32_t compression;
    std::uint64_t pixelBytes; // as stated; 0 when not
    std::uint64_t paletteEntries;
};

} // namespace

static bool IsHeaderSizeKnown(std::uint32_t size)
{
    return size == infoHeaderSize || size == 52 || size == 56 || size == 108 || size == 124;
}

static BmpHeader ReadHeader(ByteView file)
{
    if (!file.Has(0, fileHeaderSize + 4)) {
        throw Refusal("is truncated: the BMP headers are not complete");
    }
    BmpHeader header{};
    header.pixelOffset = file.U32Little(10);
    header.headerSize = file.U32Little(14);
    if (!IsHeaderSizeKnown(header.headerSize)) {
        throw Refusal("has a BMP header of unknown length " + std::to_string(header.headerSize));
    }
    if (!file.Has(fileHeaderSize, header.headerSize)) {
        throw Refusal("is truncated: the BMP headers are not complete");
    }
    if (file.U32Little(2) != file.Size()) {
        throw Refusal("is truncated or damaged: the BMP header states " + std::to_string(file.U32Little(2)) +
                      " bytes, the file has " + std::to_string(file.Size()));
    }
    header.width = static_cast<std::int32_t>(file.U32Little(18));
    header.height = static_cast<std::int32_t>(file.U32Little(22));
    if (file.U16Little(26) != 1) {
        throw Refusal("has a BMP header with a plane count other than 1");
    }
    header.bitsPerPixel = file.U16Little(28);
    header.compression = file.U32Little(30);
    header.pixelBytes = file.U32Little(34);
    header.paletteEntries = file.U32Little(46);
    return header;
}

static void CheckPixelFormat(const BmpHeader& header)
{
    const std::uint32_t bits = header.bitsPerPixel;
    if (bits != 1 && bits != 4 && bits != 8 && bits != 16 && bits != 24 && bits != 32) {
        throw Refusal("has an unknown BMP colour depth of " + std::to_string(bits) + " bits");
    }
    const bool maskable = bits == 16 || bits == 32;
    if (header.compression != compressionNone && !(header.compression == compressionBitFields && maskable)) {
        throw Refusal("has a compressed or unknown BMP pixel format");
    }
}

// Where the pixels can begin at the earliest: after the headers, the colour masks and the palette.
static std::uint64_t EarliestPixels(const BmpHeader& header)
{
    std::uint64_t entries = header.paletteEntries;
    if (header.bitsPerPixel <= 8) {
        const std::uint64_t most = std::uint64_t{1} << header.bitsPerPixel;
        if (entries > most) {
            throw Refusal("has a BMP palette of impossible length");
        }
        if (entries == 0) {
            entries = most;
        }
    }
    const bool masksFollow =
        header.compression == compressionBitFields && header.headerSize == infoHeaderSize;
    return fileHeaderSize + header.headerSize + (masksFollow ? 12 : 0) + entries * 4;
}

bool IsBmp(ByteView file)
{
    return file.StartsWith(signature);
}

PictureInfo CheckBmp(ByteView file)
{
    const BmpHeader header = ReadHeader(file);
    const std::int64_t height = header.height < 0 ? -header.height : header.height;
    if (header.width < 0) {
        throw Refusal("has a negative BMP width");
    }
    CheckDimensions(static_cast<std::uint64_t>(header.width), static_cast<std::uint64_t>(height));
    CheckPixelFormat(header);
    if (header.pixelOffset < EarliestPixels(header)) {
        throw Refusal("has BMP pixels that overlap the headers or the palette");
    }

    // Rows are padded to whole 32-bit words.
    const std::uint64_t row = (static_cast<std::uint64_t>(header.width) * header.bitsPerPixel + 31) / 32 * 4;
    const std::uint64_t needed = row * static_cast<std::uint64_t>(height);
    if (header.pixelBytes != 0 && header.pixelBytes < needed) {
        throw Refusal("states fewer BMP pixel bytes than its size needs");
    }
    if (!file.Has(header.pixelOffset, needed) || !file.Has(header.pixelOffset, header.pixelBytes)) {
        throw Refusal("is truncated: the BMP pixels are not complete");
    }
    return {"BMP", static_cast<std::uint32_t>(header.width), static_cast<std::uint32_t>(height)};
}
