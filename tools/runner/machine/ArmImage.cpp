// Headers, sections and import tables, each refused when it is not what the device would load.
#include "tools/runner/machine/ArmImage.h"

#include "tools/common/ByteView.h"
#include "tools/common/Refusal.h"

#include <algorithm>

namespace runner {

static constexpr std::uint64_t signature = 0x00004550; // "PE"
static constexpr Word sectionRowSize = 40;
static constexpr Word libraryRowSize = 20;
static constexpr Word mostSections = 96;
static constexpr Word mostBytes = 0x01000000; // what lies below the stack

static void Need(bool good, const char* reason)
{
    if (!good) {
        throw Refusal(reason);
    }
}

static std::string TextAt(const ByteView& file, std::uint64_t offset)
{
    std::string text;
    while (const std::uint8_t character = file.U8(offset++)) {
        text += static_cast<char>(character);
    }
    return text;
}

static Word WholePages(Word size)
{
    return (size + GuestMemory::pageSize - 1) / GuestMemory::pageSize * GuestMemory::pageSize;
}

std::string ArmImage::Import::Label() const
{
    return name.empty() ? "@" + std::to_string(ordinal) : name;
}

ArmImage::ArmImage(std::vector<std::uint8_t> content) : file(std::move(content))
{
    ReadHeaders();
}

void ArmImage::ReadHeaders()
{
    const ByteView view(file);
    Need(view.U16Little(0) == 0x5A4D, "does not begin with MZ");
    const ByteView header = view.Part(view.U32Little(0x3C), 248);
    Need(header.U32Little(0) == signature, "has no PE signature");
    Need(header.U16Little(4) == 0x1C0, "is not for ARM");
    Need(header.U16Little(20) == 0xE0 && header.U16Little(24) == 0x10B, "is not of 32 bits");
    Need(header.U16Little(92) == 9, "is not for Windows CE");
    Need((header.U16Little(22) & 0x2000) == 0, "is a library");
    base = header.U32Little(52);
    size = header.U32Little(80);
    headerSize = header.U32Little(84);
    stackReserve = header.U32Little(96);
    Need(base != 0 && base % GuestMemory::pageSize == 0, "has a base that is no page");
    Need(size <= mostBytes && base <= mostBytes - size, "is too large");
    Need(headerSize <= size && headerSize <= file.size(), "has headers that are longer than the file");
    Need(stackReserve != 0 && stackReserve % GuestMemory::pageSize == 0 && stackReserve <= 0x100000,
         "reserves a stack that no process gets");
    ReadSections(std::uint64_t{view.U32Little(0x3C)} + 248, header.U16Little(6));
    entry = base + header.U32Little(40);
    const Section* code = SectionAt(entry);
    Need(code != nullptr && (code->protection & CanExecute) != 0, "has an entry point outside its code");
    ReadImports(header.U32Little(128), header.U32Little(132));
}

void ArmImage::ReadSections(std::uint64_t table, Word count)
{
    Need(count >= 1 && count <= mostSections, "has no sections, or too many");
    Address free = base + WholePages(headerSize);
    for (Word index = 0; index < count; index++) {
        const ByteView row =
            ByteView(file).Part(table + std::uint64_t{sectionRowSize} * index, sectionRowSize);
        Section section;
        for (Word place = 0; place < 8 && row.U8(place) != 0; place++) {
            section.name += static_cast<char>(row.U8(place));
        }
        const Word rva = row.U32Little(12);
        section.size = row.U32Little(8);
        section.begin = base + rva;
        section.fileOffset = row.U32Little(20);
        section.fileSize = std::min(row.U32Little(16), section.size);
        Need(rva <= size && section.size <= size - rva, "has a section outside the image");
        Need(rva % GuestMemory::pageSize == 0, "has a section that does not begin with a page");
        Need(section.begin >= free, "has sections that overlap");
        free = section.begin + WholePages(section.size);
        Need(ByteView(file).Has(section.fileOffset, section.fileSize), "is truncated");
        const Word flags = row.U32Little(36);
        section.protection = ((flags & 0x40000000) != 0 ? CanRead : 0) |
                             ((flags & 0x80000000) != 0 ? CanWrite : 0) |
                             ((flags & 0x20000000) != 0 ? CanExecute : 0);
        sections.push_back(section);
    }
}

std::uint64_t ArmImage::OffsetOf(Word rva) const
{
    for (const Section& section : sections) {
        if (base + rva - section.begin < section.fileSize) {
            return std::uint64_t{section.fileOffset} + (base + rva - section.begin);
        }
    }
    throw Refusal("has an import table outside its sections");
}

Word ArmImage::WordAt(Word rva) const
{
    return ByteView(file).U32Little(OffsetOf(rva));
}

void ArmImage::ReadImports(Word rva, Word length)
{
    if (rva == 0) {
        return;
    }
    for (Word row = 0; row + libraryRowSize <= length; row += libraryRowSize) {
        const Word name = WordAt(rva + row + 12);
        if (name == 0) {
            return;
        }
        ReadLibrary(WordAt(rva + row), WordAt(rva + row + 16), TextAt(ByteView(file), OffsetOf(name)));
    }
    throw Refusal("has an import directory without an end");
}

void ArmImage::ReadLibrary(Word lookups, Word slots, const std::string& library)
{
    Need(slots % sizeof(Word) == 0, "has import addresses that are not aligned");
    for (;; lookups += sizeof(Word), slots += sizeof(Word)) {
        const Word lookup = WordAt(lookups);
        // The loader takes the functions from one table and puts their addresses into the other.
        Need(WordAt(slots) == lookup, "has import tables that differ");
        if (lookup == 0) {
            return;
        }
        Import import;
        import.library = library;
        import.slot = base + slots;
        if ((lookup & 0x80000000) != 0) {
            import.ordinal = lookup & 0xFFFF;
        } else {
            import.name = TextAt(ByteView(file), OffsetOf(lookup) + 2);
            Need(!import.name.empty(), "has an import without a name");
        }
        const Section* section = SectionAt(import.slot);
        Need((section->protection & CanWrite) != 0, "has import addresses that cannot be written");
        imports.push_back(import);
    }
}

const ArmImage::Section* ArmImage::SectionAt(Address address) const
{
    for (const Section& section : sections) {
        if (address >= section.begin && address - section.begin < section.size) {
            return &section;
        }
    }
    return nullptr;
}

void ArmImage::LoadInto(GuestMemory& memory) const
{
    memory.Map(base, WholePages(headerSize), CanRead);
    std::copy_n(file.begin(), headerSize, memory.Host(base));
    for (const Section& section : sections) {
        memory.Map(section.begin, WholePages(section.size), section.protection);
        std::copy_n(file.begin() + section.fileOffset, section.fileSize, memory.Host(section.begin));
    }
}

} // namespace runner
