// The listing of good and of broken containers.
#include "tests/tools/Packer.h"
#include "tests/tools/PictureBytes.h"
#include "tests/tools/Refused.h"

#include <gtest/gtest.h>

TEST(ContainerListTest, ShowsEveryEntry)
{
    const TempFolder folder;
    const std::string output = folder.Path("out.zrs");
    ASSERT_EQ(
        RunPacker({output, "1=" + folder.Put("a.png", GoodPng()), "0=" + folder.Put("b.bmp", GoodBmp(3, 2))})
            .exitCode,
        0);
    const PackerResult result = RunPacker({"--list", output});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "version 1, header words 0 0 0, entries 2\n"
                             "        id     offset       size  picture\n"
                             "         0         67         78  BMP 3 x 2\n"
                             "         1        145         70  PNG 1 x 1\n");
}

TEST(ContainerListTest, ShowsAnEntryThatIsNoPicture)
{
    const TempFolder folder;
    const std::string output = folder.Path("out.zrs");
    ASSERT_EQ(RunPacker({output, "1=" + folder.Put("a.png", GoodPng())}).exitCode, 0);
    Bytes bytes = ReadAll(output);
    bytes.at(47) = 'x';
    const PackerResult result = RunPacker({"--list", folder.Put("broken.zrs", bytes)});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.output.find("not a usable picture: is neither a PNG nor a BMP file"), std::string::npos);
}

static void ExpectNotListed(const Bytes& bytes, const std::string& words)
{
    const TempFolder folder;
    const PackerResult result = RunPacker({"--list", folder.Put("broken.zrs", bytes)});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, "");
    ExpectOneLine(result.errors);
    EXPECT_NE(result.errors.find(words), std::string::npos) << result.errors;
}

TEST(ContainerListTest, BrokenContainersAreRefused)
{
    const TempFolder folder;
    const std::string output = folder.Path("out.zrs");
    ASSERT_EQ(RunPacker({output, "1=" + folder.Put("a.png", GoodPng())}).exitCode, 0);
    const Bytes good = ReadAll(output);
    for (std::size_t size = 0; size < good.size(); size++) {
        SCOPED_TRACE(size);
        ExpectNotListed(Bytes(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(size)),
                        "is not a picture container");
    }
    const auto changed = [&](std::size_t offset, std::uint32_t value) {
        Bytes bytes = good;
        PutU32Little(bytes, offset, value);
        return bytes;
    };
    ExpectNotListed(changed(3, 0x01535200), "wrong or incomplete header");
    ExpectNotListed(changed(7, 2), "unknown version 2");
    ExpectNotListed(changed(23, 0xffffffff), "directory is longer than the file");
    ExpectNotListed(changed(23, 0x0ccccccd), "directory is longer than the file");
    ExpectNotListed(changed(31, 0xffffffff), "entry 1 lies outside the file");
    ExpectNotListed(changed(35, 0xffffffff), "entry 1 lies outside the file");
    ExpectNotListed({}, "wrong or incomplete header");
}
