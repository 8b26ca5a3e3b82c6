// The binary instructions of an installation, byte by byte.
#include "tests/tools/Cabheader.h"

#include <gtest/gtest.h>

TEST(BinaryInstructionsTest, OneFileAndOneShortcutByteByByte)
{
    const Instructions written = WriteInstructions(Joined({
        "provider = Me",
        "name = Tool",
        "oldest = 5.1",
        "newest = 6.99",
        "cabinet = TEST",
        R"(folder = %CE1%\Dir)",
        "file = p.exe",
        R"(shortcut = %CE11%\p.lnk > p.exe)",
    }));
    // clang-format off
    const Bytes expected = {
        'M', 'S', 'C', 'E', 0, 0, 0, 0,             // signature, a word of unknown meaning
        194, 0, 0, 0,  0, 0, 0, 0,  1, 0, 0, 0,     // length of the whole, two unknown words
        17, 10, 0, 0,                               // 2577: ARM
        5, 0, 0, 0,  1, 0, 0, 0,                    // oldest version
        6, 0, 0, 0,  99, 0, 0, 0,                   // newest version
        0, 0, 0, 0,  0, 0, 0, 0xe0,                 // oldest and newest build
        4, 0,  1, 0,  1, 0,  0, 0,  0, 0,  1, 0,    // strings, folders, files, registry keys, values, links
        108, 0, 0, 0,  150, 0, 0, 0,                // where they begin
        160, 0, 0, 0,  178, 0, 0, 0,
        178, 0, 0, 0,  178, 0, 0, 0,
        100, 0,  5, 0,                              // offset and length of the name,
        105, 0,  3, 0,                              // the provider
        108, 0,  0, 0,                              // and the unsupported platforms
        0, 0,  0, 0,                                // two unknown words
        // Offset 100
        'T', 'o', 'o', 'l', 0,
        'M', 'e', 0,
        // Offset 108: number, length, string; the first is the program's folder
        1, 0,  10, 0,  '%', 'C', 'E', '1', '%', '\\', 'D', 'i', 'r', 0,
        2, 0,  6, 0,  '%', 'C', 'E', '1', '%', 0,
        3, 0,  4, 0,  'D', 'i', 'r', 0,
        4, 0,  6, 0,  'p', '.', 'l', 'n', 'k', 0,
        // Offset 150: folder 1, length, strings 2 and 3, end
        1, 0,  6, 0,  2, 0,  3, 0,  0, 0,
        // Offset 160: file 1 in folder 1, its number again, always overwritten, length, name
        1, 0,  1, 0,  1, 0,  0, 0, 0, 0x40,  6, 0,  'p', '.', 'e', 'x', 'e', 0,
        // Offset 178: link 1, unknown word, below %CE11%, to file 1, which is a file, length, string 4, end
        1, 0,  0, 0,  11, 0,  1, 0,  1, 0,  4, 0,  4, 0,  0, 0,
    };
    // clang-format on
    EXPECT_EQ(written.binary, expected);
}

TEST(BinaryInstructionsTest, PartsOfPathsAreSharedStrings)
{
    const Instructions written = WriteInstructions(Joined({
        "provider = Me",
        "name = Tool",
        "oldest = 5.0",
        "newest = 5.0",
        "cabinet = TEST",
        R"(folder = %CE2%\A\B\A)",
        "file = x",
        "file = y",
        R"(shortcut = %CE17%\B\y.lnk > y)",
    }));
    // clang-format off
    const Bytes expected = {
        1, 0,  12, 0,  '%', 'C', 'E', '2', '%', '\\', 'A', '\\', 'B', '\\', 'A', 0,
        2, 0,  6, 0,  '%', 'C', 'E', '2', '%', 0,
        3, 0,  2, 0,  'A', 0,
        4, 0,  2, 0,  'B', 0,
        5, 0,  6, 0,  'y', '.', 'l', 'n', 'k', 0,
        1, 0,  10, 0,  2, 0,  3, 0,  4, 0,  3, 0,  0, 0,
        1, 0,  1, 0,  1, 0,  0, 0, 0, 0x40,  2, 0,  'x', 0,
        2, 0,  1, 0,  2, 0,  0, 0, 0, 0x40,  2, 0,  'y', 0,
        1, 0,  0, 0,  17, 0,  2, 0,  1, 0,  6, 0,  4, 0,  5, 0,  0, 0,
    };
    // clang-format on
    ASSERT_EQ(written.binary.size(), 108 + expected.size());
    EXPECT_EQ(Bytes(written.binary.begin() + 108, written.binary.end()), expected);
    // 5 strings, 1 folder, 2 files, 1 link.
    const Bytes counts = {5, 0, 1, 0, 2, 0, 0, 0, 0, 0, 1, 0};
    EXPECT_EQ(Bytes(written.binary.begin() + 48, written.binary.begin() + 60), counts);
}

TEST(BinaryInstructionsTest, NumbersOfMoreThanOneByte)
{
    const Instructions written = WriteInstructions(DescriptionWith("newest", "newest = 258.65535"));
    const Bytes newest = {2, 1, 0, 0, 0xff, 0xff, 0, 0};
    EXPECT_EQ(Bytes(written.binary.begin() + 32, written.binary.begin() + 40), newest);

    std::vector<std::string> lines = GoodDescription();
    for (int i = 2; i <= 300; i++) {
        lines.push_back("file = " + std::to_string(i));
    }
    const Instructions many = WriteInstructions(Joined(lines));
    const Bytes count = {300 - 256, 1};
    EXPECT_EQ(Bytes(many.binary.begin() + 52, many.binary.begin() + 54), count);
    // 115 + 32 of strings + 10 of the folder + 18 + 8 * 14 + 90 * 15 + 201 * 16 of files.
    ASSERT_EQ(many.binary.size(), 4853u);
    const Bytes length = {4853 % 256, 4853 / 256};
    EXPECT_EQ(Bytes(many.binary.begin() + 8, many.binary.begin() + 10), length);
}
