// The promises of the sections.
#include "tests/device/image/SectionFaults.h"

#include <algorithm>

namespace {

struct ExpectedSection
{
    std::string name;
    std::uint32_t characteristics;
};

} // namespace

// Data, read; code, execute and read; data, read and write.
static const ExpectedSection expectedSections[] = {
    {".rsrc", 0x40000040}, {".text", 0x60000020}, {".data", 0xC0000040}};

static void FindKindFaults(const std::vector<ImageSection>& sections, Complaints& complaints)
{
    for (std::size_t index = 0; index < sections.size(); index++) {
        const ExpectedSection& expected = expectedSections[index];
        complaints.Require(sections[index].name == expected.name,
                           "section " + std::to_string(index) + " is not " + expected.name);
        complaints.RequireEqual("the kind of " + expected.name, sections[index].characteristics,
                                expected.characteristics);
    }
}

// The bytes of the file are those of the memory.
static void FindPlaceFaults(const std::vector<ImageSection>& sections, Complaints& complaints)
{
    std::uint64_t end = pageSize;
    for (const ImageSection& section : sections) {
        const std::uint32_t rva = section.memory.rva;
        complaints.Require(section.fileOffset == rva,
                           section.name + " is elsewhere in the file than in memory");
        complaints.Require(rva % pageSize == 0, section.name + " does not begin with a page");
        complaints.Require(section.fileSize % pageSize == 0, section.name + " does not end with a page");
        complaints.Require(rva <= end, "there is a gap before " + section.name);
        complaints.Require(rva >= end, section.name + " overlaps what is before it");
        end = rva + std::max(WholePages(section.memory.size), std::uint64_t{section.fileSize});
    }
}

static void FindMemoryFaults(const std::vector<ImageSection>& sections, const ElfFile& linked,
                             Complaints& complaints)
{
    for (const ImageSection& section : sections) {
        const std::uint64_t memorySize = WholePages(section.memory.size);
        // The zeroed variables are not in the file.
        const bool fits =
            section.name == ".data" ? memorySize >= section.fileSize : memorySize == section.fileSize;
        complaints.Require(fits, section.name + " has another size in memory than in the file");
    }
    complaints.RequireEqual("the end of .data in memory", sections.back().memory.End(),
                            linked.MemoryEnd() - 0x10000);
}

void FindSectionFaults(const ImageView& image, const ElfFile& linked, Complaints& complaints)
{
    const std::vector<ImageSection>& sections = image.Sections();
    complaints.RequireEqual("the number of sections", sections.size(), std::size(expectedSections));
    if (sections.size() != std::size(expectedSections)) {
        return;
    }
    FindKindFaults(sections, complaints);
    FindPlaceFaults(sections, complaints);
    FindMemoryFaults(sections, linked, complaints);

    const ImageSection& last = sections.back();
    complaints.RequireEqual("the image's size", image.U32(Field::ImageSize), WholePages(last.memory.End()));
    complaints.RequireEqual("the headers' size", image.U32(Field::HeaderSize), sections.front().fileOffset);
    complaints.RequireEqual("the code's size", image.U32(Field::CodeSize), image.Section(".text").fileSize);
    complaints.RequireEqual("the code's place", image.U32(Field::CodeBase),
                            image.Section(".text").memory.rva);
    complaints.RequireEqual("the data's place", image.U32(Field::DataBase), last.memory.rva);
    complaints.RequireEqual("the file's size", image.File().Size(),
                            std::uint64_t{last.fileOffset} + last.fileSize);
    complaints.Require(image.File().Size() <= 128 * 1024, "the file is larger than 128 KB");
}
