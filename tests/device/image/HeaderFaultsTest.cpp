// Every promise of the headers, broken.
#include "tests/device/image/PatchedImage.h"

#include <gtest/gtest.h>

struct Change
{
    Field field;
    std::uint32_t value;
    std::string fault;
};

TEST(HeaderFaultsTest, WrongHalfWordIsFound)
{
    const Change changes[] = {
        {Field::Machine, 0x14C, "the machine is 0x14c, not 0x1c0"},
        {Field::Machine, 0x1C2, "the machine is 0x1c2, not 0x1c0"},
        {Field::OptionalSize, 0xF0, "the optional header's size is 0xf0, not 0xe0"},
        {Field::Magic, 0x20B, "the optional header's kind is 0x20b, not 0x10b"},
        {Field::Subsystem, 2, "the subsystem is 0x2, not 0x9"},
        {Field::SubsystemMajor, 4, "the subsystem's version is 0x4, not 0x5"},
        {Field::SubsystemMinor, 2, "the subsystem's minor version is 0x2, not 0x1"},
        {Field::Characteristics, 0x10E, "the headers do not say that there are no relocations"},
        {Field::Characteristics, 0x10D, "the headers do not say that it can be executed"},
        {Field::Characteristics, 0x00F, "the headers do not say that it is of 32 bits"},
        {Field::Characteristics, 0x210F, "the headers say that it is a library"},
    };
    for (const Change& change : changes) {
        PatchedImage image;
        image.Put16(change.field, change.value);
        ExpectOnlyFault(image, change.fault);
    }
}

TEST(HeaderFaultsTest, WrongWordIsFound)
{
    const Change changes[] = {
        {Field::TimeStamp, 1, "the time stamp is 0x1, not 0x0"},
        {Field::ImageBase, 0x400000, "the base is 0x400000, not 0x10000"},
        {Field::SectionAlignment, 0x200, "the sections' alignment is 0x200, not 0x1000"},
        {Field::FileAlignment, 0x200, "the file's alignment is 0x200, not 0x1000"},
        {Field::StackReserve, 0x1000, "the stack may not grow to 64 KB"},
        {Field::StackReserve, 0xFFFF, "the stack may not grow to 64 KB"},
        {Field::DirectoryCount, 15, "the number of directories is 0xf, not 0x10"},
    };
    for (const Change& change : changes) {
        PatchedImage image;
        image.Put32(change.field, change.value);
        ExpectOnlyFault(image, change.fault);
    }
}

TEST(HeaderFaultsTest, LargerStackIsNoFault)
{
    PatchedImage image;
    image.Put32(Field::StackReserve, 0x20000);
    EXPECT_EQ(image.Faults(), std::vector<std::string>());
}

TEST(HeaderFaultsTest, OtherEntryPointIsFound)
{
    PatchedImage image;
    const std::uint32_t entry = image.View().U32(Field::Entry);
    image.Put32(Field::Entry, entry + 4);
    ExpectOnlyFault(image, "the entry point is 0x");
    image.Put32(Field::Entry, image.View().Section(".data").memory.rva);
    ExpectFault(image, "the entry point is outside .text");
}

struct DirectoryChange
{
    std::size_t index;
    std::string section;
    std::string name;
};

TEST(HeaderFaultsTest, DirectoryOutsideItsSectionIsFound)
{
    const DirectoryChange changes[] = {
        {1, ".text", "the import directory"},
        {2, ".rsrc", "the resource directory"},
        {12, ".data", "the directory of import addresses"},
    };
    for (const DirectoryChange& change : changes) {
        const PatchedImage built;
        const ImageRange section = built.View().Section(change.section).memory;
        const ImageRange directory = built.View().Directory(change.index);
        const std::uint64_t place = built.View().OffsetOf(Field::Directories) + 8 * change.index;

        PatchedImage before = built;
        before.Put32(place, section.rva - 4);
        ExpectFault(before, change.name + " is outside " + change.section);
        PatchedImage tooLarge = built;
        tooLarge.Put32(place + 4, section.rva + section.size - directory.rva + 4);
        ExpectFault(tooLarge, change.name + " is outside " + change.section);
        PatchedImage empty = built;
        empty.Put32(place + 4, 0);
        ExpectFault(empty, change.name + " is empty");
    }
}

TEST(HeaderFaultsTest, DirectoryThatNobodyFillsIsFound)
{
    for (const std::size_t index : {0u, 3u, 4u, 5u, 6u, 7u, 8u, 9u, 10u, 11u, 13u, 14u, 15u}) {
        PatchedImage image;
        image.Put32(image.View().OffsetOf(Field::Directories) + 8 * index, 0x1000);
        ExpectOnlyFault(image, "there is a directory " + std::to_string(index));
    }
}
