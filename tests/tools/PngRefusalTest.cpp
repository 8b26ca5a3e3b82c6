// PNG files the packer must not put into a container.
#include "tests/tools/PictureBytes.h"
#include "tests/tools/Refused.h"

#include <gtest/gtest.h>

static Bytes End()
{
    return PngChunk("IEND", {});
}

TEST(PngRefusalTest, GoodPicturesArePacked)
{
    ExpectPacked(GoodPng());
    ExpectPacked(PngOf({PngHeader(4096, 4096), PngPixels(), End()}));
    ExpectPacked(PngOf({PngHeader(1, 1, 8, 3), PngChunk("PLTE", {1, 2, 3}), PngPixels(0), End()}));
    ExpectPacked(PngOf({PngHeader(1, 1), PngChunk("tEXt", {'a', 0, 'b'}), PngPixels(), PngPixels(), End()}));
}

TEST(PngRefusalTest, EveryTruncationIsRefused)
{
    const Bytes good = GoodPng();
    for (std::size_t size = PngSignature().size(); size < good.size(); size++) {
        SCOPED_TRACE(size);
        ExpectRefused(Bytes(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(size)), "truncated");
    }
}

TEST(PngRefusalTest, EveryChangedByteIsRefused)
{
    const Bytes good = GoodPng();
    for (std::size_t i = 0; i < good.size(); i++) {
        SCOPED_TRACE(i);
        Bytes changed = good;
        changed[i] ^= 0x01;
        ExpectRefused(changed, i < PngSignature().size() ? "neither a PNG nor a BMP" : "");
    }
}

TEST(PngRefusalTest, WrongChecksumNamesTheChunk)
{
    Bytes file = GoodPng();
    file.at(file.size() - 1) ^= 0xff;
    ExpectRefused(file, "checksum of PNG chunk IEND is wrong");
}

TEST(PngRefusalTest, ChunkLongerThanTheFile)
{
    for (const std::uint32_t length : {0x72u, 0x7fffffffu, 0x80000000u, 0xfffffff4u, 0xffffffffu}) {
        SCOPED_TRACE(length);
        Bytes file = GoodPng();
        // The length of the second chunk.
        PutU32Big(file, 33, length);
        ExpectRefused(file, "IDAT is longer than the file");
    }
}

TEST(PngRefusalTest, ChunkNameOfOtherBytes)
{
    ExpectRefused(PngOf({PngHeader(1, 1), PngChunk(std::string("\n\x1b[0", 4), {1}), PngPixels(), End()}),
                  "chunk without a valid name");
}

TEST(PngRefusalTest, ImpossibleSizes)
{
    ExpectRefused(PngOf({PngHeader(0, 1), PngPixels(), End()}), "impossible size of 0 x 1");
    ExpectRefused(PngOf({PngHeader(1, 0), PngPixels(), End()}), "impossible size of 1 x 0");
    ExpectRefused(PngOf({PngHeader(4097, 1), PngPixels(), End()}), "impossible size of 4097 x 1");
    ExpectRefused(PngOf({PngHeader(1, 0xffffffff), PngPixels(), End()}), "impossible size of 1 x 4294967295");
}

TEST(PngRefusalTest, HeaderMissingRepeatedOrOfTheWrongLength)
{
    ExpectRefused(PngOf({PngPixels(), End()}), "does not begin with a PNG header");
    ExpectRefused(PngOf({End()}), "does not begin with a PNG header");
    ExpectRefused(PngOf({PngHeader(1, 1), PngHeader(1, 1), PngPixels(), End()}), "two PNG headers");
    ExpectRefused(PngOf({PngChunk("IHDR", Bytes(12)), PngPixels(), End()}), "header of the wrong length");
    ExpectRefused(PngOf({PngChunk("IHDR", {}), PngPixels(), End()}), "header of the wrong length");
}

TEST(PngRefusalTest, UnknownPixelFormats)
{
    ExpectRefused(PngOf({PngHeader(1, 1, 3, 0), PngPixels(), End()}), "unknown PNG pixel format");
    ExpectRefused(PngOf({PngHeader(1, 1, 4, 2), PngPixels(), End()}), "unknown PNG pixel format");
    ExpectRefused(PngOf({PngHeader(1, 1, 16, 3), PngPixels(), End()}), "unknown PNG pixel format");
    ExpectRefused(PngOf({PngHeader(1, 1, 8, 5), PngPixels(), End()}), "unknown PNG pixel format");
    for (std::size_t method = 10; method <= 12; method++) {
        Bytes data{0, 0, 0, 1, 0, 0, 0, 1, 8, 0, 0, 0, 0};
        data.at(method) = 2;
        ExpectRefused(PngOf({PngChunk("IHDR", data), PngPixels(), End()}),
                      "compression, filter or interlace");
    }
}

TEST(PngRefusalTest, PaletteProblems)
{
    const Bytes indexed = PngHeader(1, 1, 8, 3);
    ExpectRefused(PngOf({indexed, PngPixels(), End()}), "no PNG palette");
    ExpectRefused(PngOf({indexed, PngChunk("PLTE", {1, 2}), PngPixels(), End()}),
                  "palette of the wrong length");
    ExpectRefused(PngOf({indexed, PngChunk("PLTE", {}), PngPixels(), End()}), "palette of the wrong length");
    ExpectRefused(PngOf({indexed, PngChunk("PLTE", Bytes(771)), PngPixels(), End()}),
                  "palette of the wrong length");
    const Bytes palette = PngChunk("PLTE", {1, 2, 3});
    ExpectRefused(PngOf({indexed, palette, palette, PngPixels(), End()}), "palette in the wrong place");
    ExpectRefused(PngOf({PngHeader(1, 1, 8, 2), PngPixels(), palette, End()}), "palette in the wrong place");
    ExpectRefused(PngOf({PngHeader(1, 1, 8, 0), palette, PngPixels(), End()}), "palette in the wrong place");
}

TEST(PngRefusalTest, PixelsMissingOrScattered)
{
    ExpectRefused(PngOf({PngHeader(1, 1), End()}), "no PNG pixel data");
    ExpectRefused(PngOf({PngHeader(1, 1), PngChunk("IDAT", {}), End()}), "no PNG pixel data");
    ExpectRefused(PngOf({PngHeader(1, 1), PngPixels(), PngChunk("tEXt", {'a', 0}), PngPixels(), End()}),
                  "separate places");
}

TEST(PngRefusalTest, EndMissingFilledOrFollowed)
{
    ExpectRefused(PngOf({PngHeader(1, 1), PngPixels()}), "without an IEND chunk");
    ExpectRefused(PngOf({PngHeader(1, 1), PngPixels(), PngChunk("IEND", {0})}),
                  "end chunk that is not empty");
    Bytes file = GoodPng();
    file.push_back(0);
    ExpectRefused(file, "after the end");
}

TEST(PngRefusalTest, UnknownChunkThatDecodersMustKnow)
{
    ExpectRefused(PngOf({PngHeader(1, 1), PngChunk("ABCD", {1}), PngPixels(), End()}),
                  "unknown PNG chunk ABCD");
}
