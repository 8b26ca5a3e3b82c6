// The container that the build has made: the right pictures under the right ids, drawn cleanly.
#include "tests/tools/BuiltPicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>

static constexpr Rgb black{0, 0, 0};
static constexpr Rgb white{255, 255, 255};

class BuiltContainerTest : public testing::Test
{
  protected:
    Bytes file = ReadAll(QV_BUILT_CONTAINER);

    Bytes Entry(std::size_t index) const
    {
        const std::size_t record = 27 + 20 * index;
        const auto begin = file.begin() + WordAt(file, record + 4);
        return Bytes(begin, begin + WordAt(file, record + 8));
    }

    // Calls check(picture, mask) for each of the eight pairs.
    template <typename Check>
    void ForEachPair(Check check) const
    {
        for (std::size_t id = 0; id < 16; id += 2) {
            SCOPED_TRACE(id);
            const auto picture = DecodeBitmap(Entry(id));
            const auto mask = DecodeBitmap(Entry(id + 1));
            ASSERT_TRUE(picture && mask);
            check(*picture, *mask);
        }
    }
};

TEST_F(BuiltContainerTest, HoldsTheSixteenIdsInOrderAndNothingElse)
{
    ASSERT_EQ(Bytes(file.begin(), file.begin() + 7), (Bytes{'Q', 'V', '_', 'Z', 'R', 'S', 0}));
    EXPECT_EQ(WordAt(file, 7), 1u);
    for (const std::size_t offset : {11u, 15u, 19u}) {
        EXPECT_EQ(WordAt(file, offset), 0u);
    }
    ASSERT_EQ(WordAt(file, 23), 16u);
    std::size_t next = 27 + 16 * 20;
    for (std::size_t i = 0; i < 16; i++) {
        EXPECT_EQ(WordAt(file, 27 + 20 * i), i);
        EXPECT_EQ(WordAt(file, 27 + 20 * i + 4), next);
        next += WordAt(file, 27 + 20 * i + 8);
        EXPECT_EQ(WordAt(file, 27 + 20 * i + 12), 0u);
        EXPECT_EQ(WordAt(file, 27 + 20 * i + 16), 0u);
    }
    EXPECT_EQ(file.size(), next);
}

TEST_F(BuiltContainerTest, PicturesAre32PixelsUpToId7And48FromId8)
{
    for (std::size_t id = 0; id < 16; id++) {
        SCOPED_TRACE(id);
        const auto picture = DecodeBitmap(Entry(id));
        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->width, id < 8 ? 32u : 48u);
        EXPECT_EQ(picture->height, id < 8 ? 32u : 48u);
    }
}

TEST_F(BuiltContainerTest, MasksAreStrictlyBlackAndWhiteWithAClearBorder)
{
    ForEachPair([](const BuiltPicture&, const BuiltPicture& mask) {
        const auto opaque = std::count(mask.pixels.begin(), mask.pixels.end(), black);
        const auto clear = std::count(mask.pixels.begin(), mask.pixels.end(), white);
        const auto all = static_cast<std::ptrdiff_t>(mask.pixels.size());
        EXPECT_EQ(opaque + clear, all);
        // The family's pictures weigh about the same.
        EXPECT_GT(opaque, all * 45 / 100);
        EXPECT_LT(opaque, all * 75 / 100);
        for (std::size_t i = 0; i < mask.width; i++) {
            EXPECT_EQ(mask.At(i, 0), white);
            EXPECT_EQ(mask.At(i, mask.height - 1), white);
            EXPECT_EQ(mask.At(0, i), white);
            EXPECT_EQ(mask.At(mask.width - 1, i), white);
        }
    });
}

TEST_F(BuiltContainerTest, SilhouettesEndInTheDarkOutline)
{
    // A light pixel at a hard edge would show as a halo on a dark background.
    ForEachPair([](const BuiltPicture& picture, const BuiltPicture& mask) {
        for (std::size_t y = 1; y + 1 < mask.height; y++) {
            for (std::size_t x = 1; x + 1 < mask.width; x++) {
                const bool edge =
                    mask.At(x, y) == black && (mask.At(x - 1, y) == white || mask.At(x + 1, y) == white ||
                                               mask.At(x, y - 1) == white || mask.At(x, y + 1) == white);
                if (edge) {
                    EXPECT_LT(picture.At(x, y).Lightness(), 96) << x << "," << y;
                }
            }
        }
    });
}

TEST_F(BuiltContainerTest, TheEightPicturesDiffer)
{
    std::set<Bytes> pictures;
    for (std::size_t id = 0; id < 16; id += 2) {
        pictures.insert(Entry(id));
    }
    EXPECT_EQ(pictures.size(), 8u);
}

// The colour that covers most of a picture tells its kind: the wrong picture under an id would be seen here.
TEST_F(BuiltContainerTest, EveryKindHasItsPictureUnderItsIds)
{
    const auto average = [this](std::size_t id) {
        const auto picture = DecodeBitmap(Entry(id));
        const auto mask = DecodeBitmap(Entry(id + 1));
        int sums[3] = {};
        int count = 0;
        for (std::size_t i = 0; i < picture->pixels.size(); i++) {
            if (mask->pixels[i] == black) {
                sums[0] += picture->pixels[i].red;
                sums[1] += picture->pixels[i].green;
                sums[2] += picture->pixels[i].blue;
                count++;
            }
        }
        return std::array<int, 3>{sums[0] / count, sums[1] / count, sums[2] / count};
    };
    for (const std::size_t base : {0u, 8u}) {
        SCOPED_TRACE(base);
        const auto storage = average(base); // grey metal
        EXPECT_LT(std::max({storage[0], storage[1], storage[2]}) -
                      std::min({storage[0], storage[1], storage[2]}),
                  40);
        const auto memory = average(base + 2); // green board
        EXPECT_GT(memory[1], std::max(memory[0], memory[2]) + 20);
        const auto card = average(base + 4); // blue
        EXPECT_GT(card[2], std::max(card[0], card[1]) + 20);
        const auto battery = average(base + 6); // orange
        EXPECT_GT(battery[0], battery[2] + 60);
    }
}
