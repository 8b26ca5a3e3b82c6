// Inputs that are missing, are no files, or are no pictures at all.
#include "tests/tools/Packer.h"
#include "tests/tools/PictureBytes.h"
#include "tests/tools/Refused.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

static void ExpectInputRefused(const TempFolder& folder, const std::string& input, const std::string& words)
{
    const auto before = folder.Names();
    const PackerResult result = RunPacker({folder.Path("out.zrs"), "0=" + input});
    EXPECT_EQ(result.exitCode, 1);
    ExpectOneLine(result.errors);
    EXPECT_EQ(result.errors.rfind("zrspack: " + input + ": " + words, 0), 0u) << result.errors;
    EXPECT_EQ(folder.Names(), before);
}

TEST(InputFileTest, MissingFile)
{
    const TempFolder folder;
    ExpectInputRefused(folder, folder.Path("nothing.png"), "cannot be opened: No such file or directory");
    const std::string file = folder.Put("file", {1});
    ExpectInputRefused(folder, file + "/inside.png", "cannot be opened: Not a directory");
}

TEST(InputFileTest, FolderPipeAndDeviceAreNotRead)
{
    const TempFolder folder;
    std::filesystem::create_directory(folder.Path("folder.png"));
    ExpectInputRefused(folder, folder.Path("folder.png"), "is not a regular file");
    ASSERT_EQ(mkfifo(folder.Path("pipe.png").c_str(), 0600), 0);
    ExpectInputRefused(folder, folder.Path("pipe.png"), "is not a regular file");
    ExpectInputRefused(folder, "/dev/zero", "is not a regular file");
}

TEST(InputFileTest, EndlessLinksAndLongNames)
{
    const TempFolder folder;
    std::filesystem::create_symlink("loop.png", folder.Path("loop.png"));
    ExpectInputRefused(folder, folder.Path("loop.png"), "cannot be opened: ");
    ExpectInputRefused(folder, folder.Path(std::string(300, 'n')), "cannot be opened: File name too long");
}

TEST(InputFileTest, HugeFileIsRefusedUnread)
{
    const TempFolder folder;
    const std::string huge = folder.Put("huge.bmp", GoodBmp());
    // Sparse: it takes no room on the disk.
    std::filesystem::resize_file(huge, 16u * 1024 * 1024 + 1);
    ExpectInputRefused(folder, huge, "is larger than 16 MiB");
}

TEST(InputFileTest, FilesThatAreNoPictures)
{
    ExpectRefused({}, "is empty");
    ExpectRefused({0}, "neither a PNG nor a BMP");
    ExpectRefused({'B'}, "neither a PNG nor a BMP");
    ExpectRefused({'B', 'M'}, "truncated");
    ExpectRefused({'G', 'I', 'F', '8', '9', 'a', 1, 0, 1, 0, 0, 0, 0, ';'}, "neither a PNG nor a BMP");
    ExpectRefused({0xff, 0xd8, 0xff, 0xe0}, "neither a PNG nor a BMP");
    const Bytes signature = PngSignature();
    ExpectRefused(Bytes(signature.begin(), signature.begin() + 7), "neither a PNG nor a BMP");
    ExpectRefused(signature, "truncated");
}

TEST(InputFileTest, TheNameSaysNothingAboutTheFormat)
{
    const TempFolder folder;
    const std::string bitmap = folder.Put("really-a-bitmap.png", GoodBmp());
    EXPECT_EQ(RunPacker({folder.Path("out.zrs"), "0=" + bitmap}).exitCode, 0);
}

TEST(InputFileTest, ControlCharactersInANameKeepTheMessageOnOneLine)
{
    const TempFolder folder;
    const PackerResult result = RunPacker({folder.Path("out.zrs"), "0=" + folder.Path("a\nb\x1b[0m.png")});
    EXPECT_EQ(result.exitCode, 1);
    ExpectOneLine(result.errors);
    EXPECT_NE(result.errors.find("a?b?[0m.png: cannot be opened"), std::string::npos) << result.errors;
}

TEST(InputFileTest, OneBadInputAmongGoodOnesStopsAll)
{
    const TempFolder folder;
    const std::string good = folder.Put("good.png", GoodPng());
    const std::string bad = folder.Put("bad.png", {1, 2, 3});
    const PackerResult result = RunPacker({folder.Path("out.zrs"), "0=" + good, "1=" + bad, "2=" + good});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.errors.find(bad + ": is neither"), std::string::npos) << result.errors;
    const std::vector<std::string> names{"bad.png", "good.png"};
    EXPECT_EQ(folder.Names(), names);
}
