// The icon that the build has made: its images, their depths and their hard masks.
#include "tests/tools/BuiltPicture.h"

#include <gtest/gtest.h>

struct IconImage
{
    unsigned size; // pixels
    unsigned bits; // a pixel
};

static constexpr IconImage expectedImages[] = {{16, 32}, {32, 32}, {48, 32}, {16, 8},
                                               {32, 8},  {48, 8},  {16, 4},  {32, 4}};

TEST(BuiltIconTest, HasThreeSizesInEveryDepthThatDisplaysOfThatDepthUse)
{
    const Bytes file = ReadAll(QV_BUILT_ICON);
    ASSERT_EQ(WordAt(file, 0), 1u << 16);
    ASSERT_EQ(file.at(4), std::size(expectedImages));
    std::size_t next = 6 + 16 * std::size(expectedImages);
    for (std::size_t i = 0; i < std::size(expectedImages); i++) {
        SCOPED_TRACE(i);
        const std::size_t record = 6 + 16 * i;
        const auto [size, bits] = expectedImages[i];
        EXPECT_EQ(file.at(record), size);
        EXPECT_EQ(file.at(record + 1), size);
        EXPECT_EQ(WordAt(file, record + 4) >> 16, bits);
        // An image is a bitmap header of double height, not a PNG file.
        const std::size_t image = WordAt(file, record + 12);
        EXPECT_EQ(image, next);
        EXPECT_EQ(WordAt(file, image), 40u);
        EXPECT_EQ(WordAt(file, image + 4), size);
        EXPECT_EQ(WordAt(file, image + 8), size * 2);
        EXPECT_EQ(WordAt(file, image + 12), bits << 16 | 1);
        next += WordAt(file, record + 8);
    }
    EXPECT_EQ(file.size(), next);
}

TEST(BuiltIconTest, CornersAreClearAndTheMiddleIsOpaqueInEveryMask)
{
    const Bytes file = ReadAll(QV_BUILT_ICON);
    for (std::size_t i = 0; i < std::size(expectedImages); i++) {
        SCOPED_TRACE(i);
        const std::size_t record = 6 + 16 * i;
        const std::size_t size = expectedImages[i].size;
        // The one-bit mask ends the image; its rows are whole 32-bit words and a set bit is a clear pixel.
        const std::size_t row = (size + 31) / 32 * 4;
        const std::size_t mask = WordAt(file, record + 12) + WordAt(file, record + 8) - row * size;
        const auto isClear = [&](std::size_t x, std::size_t y) {
            return (file.at(mask + row * y + x / 8) >> (7 - x % 8) & 1) != 0;
        };
        for (const std::size_t x : {std::size_t{0}, size - 1}) {
            for (const std::size_t y : {std::size_t{0}, size - 1}) {
                EXPECT_TRUE(isClear(x, y)) << x << "," << y;
            }
        }
        EXPECT_FALSE(isClear(size / 2, size / 2));
    }
}
