// Headers and sections.
#include "tests/device/image/ImageView.h"

#include <stdexcept>

std::uint64_t WholePages(std::uint64_t size)
{
    return (size + pageSize - 1) / pageSize * pageSize;
}

ImageView::ImageView(ByteView content) : file(content), header(file.U32(0x3C))
{
    if (file.U16(0) != 0x5A4D) {
        throw std::runtime_error("it does not begin with MZ");
    }
    if (file.U32(header) != 0x00004550) {
        throw std::runtime_error("it has no PE signature");
    }
    for (std::uint32_t index = 0; index < U16(Field::SectionCount); index++) {
        const ByteView row = file.Part(OffsetOf(Field::FirstSection) + 40 * index, 40);
        std::string name;
        for (std::size_t place = 0; place < 8 && (row.U16(place) & 0xFF) != 0; place++) {
            name += static_cast<char>(row.U16(place) & 0xFF);
        }
        sections.push_back({name, {row.U32(12), row.U32(8)}, row.U32(20), row.U32(16), row.U32(36)});
    }
}

ImageRange ImageView::Directory(std::size_t index) const
{
    const std::size_t place = OffsetOf(Field::Directories) + 8 * index;
    return {file.U32(place), file.U32(place + 4)};
}

const ImageSection& ImageView::Section(const std::string& name) const
{
    for (const ImageSection& section : sections) {
        if (section.name == name) {
            return section;
        }
    }
    throw std::runtime_error("it has no section " + name);
}

std::uint64_t ImageView::OffsetOf(std::uint32_t rva) const
{
    for (const ImageSection& section : sections) {
        if (ImageRange{section.memory.rva, section.fileSize}.Holds(rva)) {
            return std::uint64_t{section.fileOffset} + rva - section.memory.rva;
        }
    }
    throw std::out_of_range("an address is in no section");
}
