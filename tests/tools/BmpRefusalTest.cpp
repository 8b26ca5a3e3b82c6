// BMP files the packer must not put into a container.
#include "tests/tools/PictureBytes.h"
#include "tests/tools/Refused.h"

#include <gtest/gtest.h>

static Bytes WithU16(std::size_t offset, std::uint32_t value)
{
    Bytes file = GoodBmp();
    PutU16Little(file, offset, value);
    return file;
}

static Bytes WithU32(std::size_t offset, std::uint32_t value)
{
    Bytes file = GoodBmp();
    PutU32Little(file, offset, value);
    return file;
}

TEST(BmpRefusalTest, GoodPicturesArePacked)
{
    ExpectPacked(GoodBmp());
    ExpectPacked(GoodBmp(48, 48));
    ExpectPacked(PaletteBmp(5, 3));
    // Rows from the top, and a pixel size left open, are both usual.
    ExpectPacked(WithU32(22, 0xfffffffe));
    ExpectPacked(WithU32(34, 0));
}

TEST(BmpRefusalTest, EveryTruncationIsRefused)
{
    const Bytes good = GoodBmp();
    for (std::size_t size = 2; size < good.size(); size++) {
        SCOPED_TRACE(size);
        Bytes part(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(size));
        ExpectRefused(part, "truncated");
        // The same with a length field that agrees with the shortened file.
        if (size >= 6) {
            PutU32Little(part, 2, static_cast<std::uint32_t>(size));
            ExpectRefused(part, "truncated");
        }
    }
}

TEST(BmpRefusalTest, BytesThatTheHeaderDoesNotCount)
{
    Bytes file = GoodBmp();
    file.push_back(0);
    ExpectRefused(file, "the BMP header states 70 bytes, the file has 71");
}

TEST(BmpRefusalTest, HeadersOfUnknownLength)
{
    for (const std::uint32_t size : {0u, 12u, 39u, 41u, 64u, 0xffffffffu}) {
        ExpectRefused(WithU32(14, size), "BMP header of unknown length " + std::to_string(size));
    }
    // A known length that reaches past the end.
    ExpectRefused(WithU32(14, 124), "headers are not complete");
}

TEST(BmpRefusalTest, ImpossibleSizes)
{
    ExpectRefused(WithU32(18, 0), "impossible size of 0 x 2");
    ExpectRefused(WithU32(22, 0), "impossible size of 2 x 0");
    ExpectRefused(WithU32(18, 4097), "impossible size of 4097 x 2");
    ExpectRefused(WithU32(18, 0x7fffffff), "impossible size of 2147483647 x 2");
    ExpectRefused(WithU32(22, 0x80000000), "impossible size of 2 x 2147483648");
    ExpectRefused(WithU32(18, 0xffffffff), "negative BMP width");
}

TEST(BmpRefusalTest, SizesThatNeedMorePixelsThanThereAre)
{
    ExpectRefused(WithU32(18, 3), "fewer BMP pixel bytes than its size needs");
    Bytes file = WithU32(18, 3);
    PutU32Little(file, 34, 0);
    ExpectRefused(file, "pixels are not complete");
    ExpectRefused(WithU32(34, 17), "pixels are not complete");
    ExpectRefused(WithU32(34, 0xffffffff), "pixels are not complete");
}

TEST(BmpRefusalTest, UnknownPixelFormats)
{
    ExpectRefused(WithU16(26, 0), "plane count");
    ExpectRefused(WithU16(26, 2), "plane count");
    for (const std::uint32_t bits : {0u, 2u, 12u, 48u, 65535u}) {
        ExpectRefused(WithU16(28, bits), "colour depth of " + std::to_string(bits) + " bits");
    }
    for (const std::uint32_t compression : {1u, 2u, 3u, 4u, 5u, 0xffffffffu}) {
        ExpectRefused(WithU32(30, compression), "compressed or unknown BMP pixel format");
    }
}

TEST(BmpRefusalTest, PixelsOutsideTheirPlace)
{
    ExpectRefused(WithU32(10, 0), "overlap the headers");
    ExpectRefused(WithU32(10, 53), "overlap the headers");
    ExpectRefused(WithU32(10, 55), "pixels are not complete");
    ExpectRefused(WithU32(10, 0xffffffff), "pixels are not complete");
}

TEST(BmpRefusalTest, PaletteProblems)
{
    Bytes file = PaletteBmp(5, 3);
    PutU32Little(file, 46, 257);
    ExpectRefused(file, "palette of impossible length");
    PutU32Little(file, 46, 0xffffffff);
    ExpectRefused(file, "palette of impossible length");
    // The full palette of 256 entries is meant when no number is given; the pixels would begin inside it.
    file = PaletteBmp(5, 3);
    PutU32Little(file, 10, 54 + 255 * 4);
    ExpectRefused(file, "overlap the headers or the palette");
    ExpectRefused(WithU32(46, 0xffffffff), "overlap the headers or the palette");
}
