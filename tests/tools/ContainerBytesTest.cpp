// The bytes of a packed container, one by one.
#include "tests/tools/Packer.h"
#include "tests/tools/PictureBytes.h"

#include <gtest/gtest.h>

TEST(ContainerBytesTest, OneEntryByteByByte)
{
    const TempFolder folder;
    const Bytes picture = GoodBmp(1, 1, 0x5a); // 58 bytes
    ASSERT_EQ(picture.size(), 58u);
    const std::string output = folder.Path("out.zrs");
    ASSERT_EQ(RunPacker({output, "258=" + folder.Put("a.bmp", picture)}).exitCode, 0);
    Bytes expected = {
        'Q', 'V', '_', 'Z', 'R', 'S', 0,                 // magic
        1,   0,   0,   0,                                // version
        0,   0,   0,   0,   0,   0,   0, 0, 0,  0, 0, 0, // three header words
        1,   0,   0,   0,                                // entries
        2,   1,   0,   0,   47,  0,   0, 0, 58, 0, 0, 0, // id 258, offset 47, size 58
        0,   0,   0,   0,   0,   0,   0, 0,              // reserved
    };
    expected.insert(expected.end(), picture.begin(), picture.end());
    EXPECT_EQ(ReadAll(output), expected);
}

TEST(ContainerBytesTest, EntriesAreInTheOrderOfTheirIdsHoweverTheyWereGiven)
{
    const TempFolder folder;
    const std::string a = folder.Put("a.png", GoodPng(1));
    const std::string b = folder.Put("b.bmp", GoodBmp(3, 3));
    const std::string c = folder.Put("c.png", GoodPng(3));
    const std::string one = folder.Path("one.zrs");
    const std::string two = folder.Path("two.zrs");
    ASSERT_EQ(RunPacker({one, "4294967295=" + a, "0=" + b, "10=" + c}).exitCode, 0);
    ASSERT_EQ(RunPacker({two, "10=" + c, "4294967295=" + a, "0=" + b}).exitCode, 0);
    const Bytes bytes = ReadAll(one);
    EXPECT_EQ(bytes, ReadAll(two));

    const auto word = [&](std::size_t offset) {
        return bytes.at(offset) | bytes.at(offset + 1) << 8 | bytes.at(offset + 2) << 16 |
               static_cast<std::uint32_t>(bytes.at(offset + 3)) << 24;
    };
    EXPECT_EQ(word(23), 3u);
    EXPECT_EQ(word(27), 0u);
    EXPECT_EQ(word(47), 10u);
    EXPECT_EQ(word(67), 4294967295u);
    const std::vector<Bytes> contents = {GoodBmp(3, 3), GoodPng(3), GoodPng(1)};
    std::uint32_t offset = 27 + 3 * 20;
    for (std::size_t i = 0; i < contents.size(); i++) {
        EXPECT_EQ(word(27 + 20 * i + 4), offset);
        ASSERT_EQ(word(27 + 20 * i + 8), contents[i].size());
        const auto begin = bytes.begin() + offset;
        EXPECT_EQ(Bytes(begin, begin + static_cast<std::ptrdiff_t>(contents[i].size())), contents[i]);
        offset += static_cast<std::uint32_t>(contents[i].size());
    }
    EXPECT_EQ(bytes.size(), offset);
}
