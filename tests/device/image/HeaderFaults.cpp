// The promises of the headers.
#include "tests/device/image/HeaderFaults.h"

static void FindFlagFaults(std::uint32_t flags, Complaints& complaints)
{
    complaints.Require((flags & 0x0001) != 0, "the headers do not say that there are no relocations");
    complaints.Require((flags & 0x0002) != 0, "the headers do not say that it can be executed");
    complaints.Require((flags & 0x0100) != 0, "the headers do not say that it is of 32 bits");
    complaints.Require((flags & 0x2000) == 0, "the headers say that it is a library");
}

static void FindEntryFaults(const ImageView& image, const ElfFile& linked, Complaints& complaints)
{
    const std::uint32_t entry = image.U32(Field::Entry);
    complaints.Require(image.Section(".text").memory.Holds(entry), "the entry point is outside .text");
    complaints.RequireEqual("the entry point", entry, linked.Symbol("ProgramEntry") - 0x10000);
}

// What a directory that the image has is called, and the section it is in.
struct DirectoryPlace
{
    std::size_t index;
    std::string name;
    std::string section;
};

static void FindDirectoryFaults(const ImageView& image, Complaints& complaints)
{
    const DirectoryPlace places[] = {
        {1, "the import directory", ".text"},
        {2, "the resource directory", ".rsrc"},
        {12, "the directory of import addresses", ".data"},
    };
    for (const DirectoryPlace& place : places) {
        const ImageSection& section = image.Section(place.section);
        const ImageRange inFile = {section.memory.rva, section.fileSize};
        const ImageRange directory = image.Directory(place.index);
        complaints.Require(directory.size != 0, place.name + " is empty");
        complaints.Require(section.memory.Holds(directory) && inFile.Holds(directory),
                           place.name + " is outside " + place.section);
    }
    for (const std::size_t index : {0u, 3u, 4u, 5u, 6u, 7u, 8u, 9u, 10u, 11u, 13u, 14u, 15u}) {
        const ImageRange directory = image.Directory(index);
        complaints.Require(directory.rva == 0 && directory.size == 0,
                           "there is a directory " + std::to_string(index));
    }
}

void FindHeaderFaults(const ImageView& image, const ElfFile& linked, Complaints& complaints)
{
    complaints.RequireEqual("the machine", image.U16(Field::Machine), 0x1C0);
    complaints.RequireEqual("the time stamp", image.U32(Field::TimeStamp), 0);
    complaints.RequireEqual("the optional header's size", image.U16(Field::OptionalSize), 0xE0);
    complaints.RequireEqual("the optional header's kind", image.U16(Field::Magic), 0x10B);
    complaints.RequireEqual("the base", image.U32(Field::ImageBase), 0x10000);
    complaints.RequireEqual("the sections' alignment", image.U32(Field::SectionAlignment), 4096);
    complaints.RequireEqual("the file's alignment", image.U32(Field::FileAlignment), 4096);
    complaints.RequireEqual("the subsystem", image.U16(Field::Subsystem), 9);
    complaints.RequireEqual("the subsystem's version", image.U16(Field::SubsystemMajor), 5);
    complaints.RequireEqual("the subsystem's minor version", image.U16(Field::SubsystemMinor), 1);
    complaints.RequireEqual("the number of directories", image.U32(Field::DirectoryCount), 16);
    complaints.Require(image.U32(Field::StackReserve) >= 0x10000, "the stack may not grow to 64 KB");
    FindFlagFaults(image.U16(Field::Characteristics), complaints);
    FindEntryFaults(image, linked, complaints);
    FindDirectoryFaults(image, complaints);
}
