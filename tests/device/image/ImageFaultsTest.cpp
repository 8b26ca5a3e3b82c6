// Files that are no images are complained about, never read beyond their end.
#include "tests/device/image/ElfFile.h"
#include "tests/device/image/PatchedImage.h"

#include <gtest/gtest.h>
#include <stdexcept>

TEST(ImageFaultsTest, OtherSignaturesAreFound)
{
    PatchedImage image;
    image.Put32(image.View().OffsetOf(Field{}), 0x0000454E);
    ExpectOnlyFault(image, "the file cannot be read: it has no PE signature");
    image.Put16(0, 0x4D5A);
    ExpectOnlyFault(image, "the file cannot be read: it does not begin with MZ");
}

TEST(ImageFaultsTest, EveryShorterFileIsFound)
{
    PatchedImage image;
    while (image.Size() > 0) {
        image.Resize(image.Size() > 509 ? image.Size() - 509 : image.Size() - 1);
        EXPECT_FALSE(image.Faults().empty()) << image.Size();
    }
    ExpectOnlyFault(image, "the file cannot be read: it points outside the bytes it is in");
}

TEST(ImageFaultsTest, OtherFileThanTheLinkersIsRefused)
{
    const std::vector<std::uint8_t> bytes(100);
    EXPECT_THROW(ElfFile{ByteView(bytes)}, std::runtime_error);
}
