// Outputs that cannot be written: the old file stays, nothing unfinished is left behind.
#include "tests/tools/Packer.h"
#include "tests/tools/PictureBytes.h"
#include "tests/tools/Refused.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

static void ExpectOutputRefused(const TempFolder& folder, const std::string& output,
                                std::size_t largestFile = 0)
{
    const std::string picture = folder.Put("picture.bmp", GoodBmp(64, 64));
    const auto before = folder.Names();
    const PackerResult result = RunPacker({output, "0=" + picture}, largestFile);
    EXPECT_EQ(result.exitCode, 1);
    ExpectOneLine(result.errors);
    EXPECT_EQ(result.errors.rfind("zrspack: " + output + ": cannot be written: ", 0), 0u) << result.errors;
    EXPECT_EQ(folder.Names(), before);
}

TEST(OutputFileTest, FolderThatDoesNotExist)
{
    const TempFolder folder;
    ExpectOutputRefused(folder, folder.Path("missing/out.zrs"));
}

TEST(OutputFileTest, FileInPlaceOfAFolder)
{
    const TempFolder folder;
    ExpectOutputRefused(folder, folder.Put("file", {1}) + "/out.zrs");
}

TEST(OutputFileTest, FolderPipeAndDeviceAreNotReplaced)
{
    const TempFolder folder;
    std::filesystem::create_directory(folder.Path("folder"));
    ExpectOutputRefused(folder, folder.Path("folder"));
    ASSERT_EQ(mkfifo(folder.Path("pipe").c_str(), 0600), 0);
    ExpectOutputRefused(folder, folder.Path("pipe"));
    // By a link: a packer without this check would replace the link, not the machine's device.
    std::filesystem::create_symlink("/dev/full", folder.Path("device"));
    ExpectOutputRefused(folder, folder.Path("device"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("device")));
}

TEST(OutputFileTest, FullDiskKeepsTheOldContainer)
{
    const TempFolder folder;
    const Bytes old = {'o', 'l', 'd'};
    const std::string output = folder.Put("out.zrs", old);
    // The disk is full at once, or only when the last buffered bytes are written out.
    const std::size_t complete = 27 + 20 + GoodBmp(64, 64).size();
    for (const std::size_t room : {std::size_t{4096}, complete - 1}) {
        ExpectOutputRefused(folder, output, room);
        EXPECT_EQ(ReadAll(output), old);
    }
}

TEST(OutputFileTest, RefusedInputKeepsTheOldContainer)
{
    const TempFolder folder;
    const Bytes old = {'o', 'l', 'd'};
    const std::string output = folder.Put("out.zrs", old);
    EXPECT_EQ(RunPacker({output, "0=" + folder.Put("bad.png", {1})}).exitCode, 1);
    EXPECT_EQ(ReadAll(output), old);
}

TEST(OutputFileTest, AnInputIsNeverOverwritten)
{
    const TempFolder folder;
    const std::string picture = folder.Put("picture.png", GoodPng());
    std::filesystem::create_hard_link(picture, folder.Path("link.png"));
    for (const std::string& output : {picture, folder.Path("link.png"), folder.Path("./picture.png")}) {
        const PackerResult result = RunPacker({output, "0=" + picture});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_NE(result.errors.find("is also the output"), std::string::npos) << result.errors;
        EXPECT_EQ(ReadAll(picture), GoodPng());
    }
}

TEST(OutputFileTest, LeftoversOfAnInterruptedRunAreNotInTheWay)
{
    const TempFolder folder;
    const Bytes leftover = {'x'};
    const std::string stale = folder.Put("out.zrs.tmp0", leftover);
    EXPECT_EQ(RunPacker({folder.Path("out.zrs"), "0=" + folder.Put("a.png", GoodPng())}).exitCode, 0);
    const std::vector<std::string> names{"a.png", "out.zrs", "out.zrs.tmp0"};
    EXPECT_EQ(folder.Names(), names);
    EXPECT_EQ(ReadAll(stale), leftover);
}

TEST(OutputFileTest, AnOlderContainerIsReplacedWhole)
{
    const TempFolder folder;
    const std::string output = folder.Put("out.zrs", Bytes(100000, 0xee));
    EXPECT_EQ(RunPacker({output, "0=" + folder.Put("a.png", GoodPng())}).exitCode, 0);
    EXPECT_EQ(ReadAll(output).size(), 27 + 20 + GoodPng().size());
}
