// Every promise of the sections, broken.
#include "tests/device/image/PatchedImage.h"

#include <gtest/gtest.h>

// The places in a section's row.
enum class Part : std::size_t
{
    Name = 0,
    MemorySize = 8,
    Rva = 12,
    FileSize = 16,
    FileOffset = 20,
    Kind = 36
};
// In the order of the image.
enum class Row : std::size_t
{
    Resources = 0,
    Code = 1,
    Data = 2
};

class SectionFaultsTest : public testing::Test
{
  protected:
    PatchedImage image;

    std::uint64_t Place(Row row, Part part) const
    {
        return image.View().OffsetOf(Field::FirstSection) + 40 * static_cast<std::size_t>(row) +
               static_cast<std::size_t>(part);
    }
    void Put(Row row, Part part, std::uint32_t value) { image.Put32(Place(row, part), value); }
    void Add(Row row, Part part, std::uint32_t difference)
    {
        Put(row, part, image.View().File().U32(Place(row, part)) + difference);
    }
    void Add(Field field, std::uint32_t difference)
    {
        image.Put32(field, image.View().U32(field) + difference);
    }
};

TEST_F(SectionFaultsTest, WritableCodeIsFound)
{
    Put(Row::Code, Part::Kind, 0xE0000020);
    ExpectOnlyFault(image, "the kind of .text is 0xe0000020, not 0x60000020");
}

TEST_F(SectionFaultsTest, ExecutableDataIsFound)
{
    Put(Row::Data, Part::Kind, 0xE0000040);
    ExpectOnlyFault(image, "the kind of .data is 0xe0000040, not 0xc0000040");
}

TEST_F(SectionFaultsTest, ReadOnlyDataIsFound)
{
    Put(Row::Data, Part::Kind, 0x40000040);
    ExpectOnlyFault(image, "the kind of .data is 0x40000040, not 0xc0000040");
}

TEST_F(SectionFaultsTest, WritableResourcesAreFound)
{
    Put(Row::Resources, Part::Kind, 0xC0000040);
    ExpectOnlyFault(image, "the kind of .rsrc is 0xc0000040, not 0x40000040");
}

TEST_F(SectionFaultsTest, OtherNameIsFound)
{
    Put(Row::Code, Part::Name, 0x6B63702E); // ".pck"
    ExpectFault(image, "section 1 is not .text");
}

TEST_F(SectionFaultsTest, MissingSectionIsFound)
{
    image.Put16(Field::SectionCount, 2);
    ExpectFault(image, "the number of sections is 0x2, not 0x3");
}

TEST_F(SectionFaultsTest, OtherPlaceInTheFileIsFound)
{
    Add(Row::Code, Part::FileOffset, 0x1000);
    ExpectFault(image, ".text is elsewhere in the file than in memory");
}

TEST_F(SectionFaultsTest, GapIsFound)
{
    Add(Row::Data, Part::Rva, 0x1000);
    Add(Row::Data, Part::FileOffset, 0x1000);
    ExpectFault(image, "there is a gap before .data");
}

TEST_F(SectionFaultsTest, OverlapIsFound)
{
    Add(Row::Code, Part::FileSize, 0x1000);
    Add(Row::Code, Part::MemorySize, 0x1000);
    ExpectFault(image, ".data overlaps what is before it");
}

TEST_F(SectionFaultsTest, PlaceAndSizeOfAPartOfAPageAreFound)
{
    Add(Row::Data, Part::Rva, 0x200);
    ExpectFault(image, ".data does not begin with a page");
    Add(Row::Code, Part::FileSize, 0x200);
    ExpectFault(image, ".text does not end with a page");
}

TEST_F(SectionFaultsTest, SizeInMemoryThatIsNotThatOfTheFileIsFound)
{
    Put(Row::Code, Part::MemorySize, 4);
    ExpectFault(image, ".text has another size in memory than in the file");
    Add(Row::Resources, Part::MemorySize, 0x1000);
    ExpectFault(image, ".rsrc has another size in memory than in the file");
    Put(Row::Data, Part::FileSize, image.View().Section(".data").memory.size + 0x1000);
    ExpectFault(image, ".data has another size in memory than in the file");
}

TEST_F(SectionFaultsTest, DataWithoutTheZeroedVariablesIsFound)
{
    const ImageSection data = image.View().Section(".data");
    ASSERT_GT(data.memory.size, data.fileSize);
    Put(Row::Data, Part::MemorySize, data.fileSize);
    ExpectFault(image, "the end of .data in memory is 0x");
}

TEST_F(SectionFaultsTest, DataWithoutItsLastVariableIsFound)
{
    Add(Row::Data, Part::MemorySize, 0u - 4);
    ExpectFault(image, "the end of .data in memory is 0x");
}

TEST_F(SectionFaultsTest, SmallerImageIsFound)
{
    Add(Field::ImageSize, 0u - 0x1000);
    ExpectOnlyFault(image, "the image's size is 0x");
}

TEST_F(SectionFaultsTest, ImageSizeOfAPartOfAPageIsFound)
{
    Add(Field::ImageSize, 0u - 4);
    ExpectOnlyFault(image, "the image's size is 0x");
}

TEST_F(SectionFaultsTest, OtherSizeOfTheHeadersIsFound)
{
    image.Put32(Field::HeaderSize, 0x200);
    ExpectOnlyFault(image, "the headers' size is 0x200, not 0x1000");
}

TEST_F(SectionFaultsTest, OtherSizeOfTheCodeIsFound)
{
    Add(Field::CodeSize, 0x1000);
    ExpectOnlyFault(image, "the code's size is 0x");
}

TEST_F(SectionFaultsTest, OtherPlaceOfTheCodeIsFound)
{
    Add(Field::CodeBase, 0x1000);
    ExpectOnlyFault(image, "the code's place is 0x");
}

TEST_F(SectionFaultsTest, OtherPlaceOfTheDataIsFound)
{
    Add(Field::DataBase, 0x1000);
    ExpectOnlyFault(image, "the data's place is 0x");
}

TEST_F(SectionFaultsTest, BytesBehindTheSectionsAreFound)
{
    image.Resize(image.Size() + 1);
    ExpectOnlyFault(image, "the file's size is 0x");
}

TEST_F(SectionFaultsTest, FileThatIsCutOffIsFound)
{
    image.Resize(image.Size() - 1);
    ExpectOnlyFault(image, "the file's size is 0x");
}

TEST_F(SectionFaultsTest, FileOverTheLimitIsFound)
{
    image.Resize(131072);
    const std::size_t atTheLimit = image.Faults().size();
    image.Resize(131073);
    ExpectFault(image, "the file is larger than 128 KB");
    EXPECT_EQ(image.Faults().size(), atTheLimit + 1);
}
