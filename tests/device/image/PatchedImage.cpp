// Reads the built files once and asks for the faults of copies.
#include "tests/device/image/PatchedImage.h"

#include "tests/device/image/ImageFaults.h"
#include "tools/common/InputFile.h"

#include <algorithm>
#include <gtest/gtest.h>

PatchedImage::PatchedImage()
{
    static const std::vector<std::uint8_t> built = ReadInputFile(QV_IMAGE);
    bytes = built;
}

void PatchedImage::Put16(std::uint64_t offset, std::uint32_t value)
{
    bytes.at(offset) = static_cast<std::uint8_t>(value);
    bytes.at(offset + 1) = static_cast<std::uint8_t>(value >> 8);
}

void PatchedImage::Put32(std::uint64_t offset, std::uint32_t value)
{
    Put16(offset, value);
    Put16(offset + 2, value >> 16);
}

void PatchedImage::PutTextAt(std::uint32_t rva, const std::string& text)
{
    const auto place = bytes.begin() + static_cast<std::ptrdiff_t>(View().OffsetOf(rva));
    *std::ranges::copy(text, place).out = 0;
}

std::vector<std::string> PatchedImage::Faults() const
{
    static const ElfFile linked{ByteView(ReadInputFile(QV_LINKED_IMAGE))};
    static const ImportLists lists(QV_IMPORT_LISTS);
    return FaultsOf(ByteView(bytes), linked, lists);
}

void ExpectFault(const PatchedImage& image, const std::string& words)
{
    const std::vector<std::string> faults = image.Faults();
    const auto isIt = [&words](const std::string& fault) { return fault.starts_with(words); };
    EXPECT_TRUE(std::ranges::any_of(faults, isIt)) << words << "\n" << testing::PrintToString(faults);
}

void ExpectOnlyFault(const PatchedImage& image, const std::string& words)
{
    ExpectFault(image, words);
    const std::vector<std::string> faults = image.Faults();
    EXPECT_EQ(faults.size(), 1u) << words << "\n" << testing::PrintToString(faults);
}
