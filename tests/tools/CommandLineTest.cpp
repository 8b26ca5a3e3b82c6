// How the packer answers calls of the wrong form, help, and bad ids.
#include "tests/tools/Packer.h"
#include "tests/tools/PictureBytes.h"
#include "tests/tools/Refused.h"

#include <gtest/gtest.h>

TEST(CommandLineTest, HelpShowsTheUsageAndSucceeds)
{
    const PackerResult result = RunPacker({"--help"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output.rfind("Usage: zrspack OUTPUT ID=FILE [ID=FILE ...]\n", 0), 0u) << result.output;
}

TEST(CommandLineTest, WrongCallsEndWithTwoAndWriteNothing)
{
    const TempFolder folder;
    const std::string picture = folder.Put("a.png", GoodPng());
    const std::string output = folder.Path("out.zrs");
    const std::vector<std::vector<std::string>> calls = {{},
                                                         {""},
                                                         {"--unknown"},
                                                         {"-h"},
                                                         {"--list"},
                                                         {"--list", ""},
                                                         {"--list", picture, picture},
                                                         {output},
                                                         {output, picture},
                                                         {output, "1="},
                                                         {output, ""},
                                                         {output, "1=" + picture, "--help"}};
    for (const auto& call : calls) {
        SCOPED_TRACE(call.empty() ? "no arguments" : call.back());
        const PackerResult result = RunPacker(call);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.output, "");
        ExpectOneLine(result.errors);
        EXPECT_EQ(folder.Names(), std::vector<std::string>{"a.png"});
    }
}

TEST(CommandLineTest, IdsMustBeNumbersOf32Bits)
{
    const TempFolder folder;
    const std::string picture = folder.Put("a.png", GoodPng());
    for (const char* id :
         {"", "x", "1x", "0x1", " 1", "1 ", "+1", "-1", "1.0", "4294967296", "99999999999999999999"}) {
        SCOPED_TRACE(id);
        const PackerResult result = RunPacker({folder.Path("out.zrs"), std::string(id) + "=" + picture});
        EXPECT_EQ(result.exitCode, 1);
        ExpectOneLine(result.errors);
        EXPECT_NE(result.errors.find(picture + ": the id '" + id + "' is not a number"), std::string::npos)
            << result.errors;
        EXPECT_EQ(folder.Names(), std::vector<std::string>{"a.png"});
    }
}

TEST(CommandLineTest, AnIdGivenTwiceIsRefused)
{
    const TempFolder folder;
    const std::string first = folder.Put("a.png", GoodPng());
    const std::string second = folder.Put("b.bmp", GoodBmp());
    // The same number written in another way is the same id.
    for (const char* again : {"3", "003"}) {
        const PackerResult result =
            RunPacker({folder.Path("out.zrs"), "3=" + first, std::string(again) + "=" + second});
        EXPECT_EQ(result.exitCode, 1);
        ExpectOneLine(result.errors);
        EXPECT_NE(result.errors.find(second + ": id 3 is given twice"), std::string::npos) << result.errors;
    }
    const std::vector<std::string> names{"a.png", "b.bmp"};
    EXPECT_EQ(folder.Names(), names);
}

TEST(CommandLineTest, AFileNameMayHaveAnEqualsSign)
{
    const TempFolder folder;
    const std::string picture = folder.Put("a=b.png", GoodPng());
    EXPECT_EQ(RunPacker({folder.Path("out.zrs"), "1=" + picture}).exitCode, 0);
}
