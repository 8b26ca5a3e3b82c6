// Reads the headers and sections of a Windows executable of 32 bits by their documented layout.
#pragma once

#include "tests/device/image/ByteView.h"

#include <vector>

inline constexpr std::uint32_t pageSize = 0x1000;

// The next multiple of a page.
std::uint64_t WholePages(std::uint64_t size);

// Places in the headers, from the signature "PE" on.
enum class Field : std::size_t
{
    // 16 bits
    Machine = 4,
    SectionCount = 6,
    OptionalSize = 20,
    Characteristics = 22,
    Magic = 24,
    SubsystemMajor = 72,
    SubsystemMinor = 74,
    Subsystem = 92,
    // 32 bits
    TimeStamp = 8,
    CodeSize = 28,
    Entry = 40,
    CodeBase = 44,
    DataBase = 48,
    ImageBase = 52,
    SectionAlignment = 56,
    FileAlignment = 60,
    ImageSize = 80,
    HeaderSize = 84,
    StackReserve = 96,
    DirectoryCount = 116,
    Directories = 120,  // 16 times address and size
    FirstSection = 248, // of 40 bytes each
};

// Addresses are relative to the image's base.
struct ImageRange
{
    std::uint32_t rva;
    std::uint32_t size;

    std::uint64_t End() const { return std::uint64_t{rva} + size; }
    bool Holds(const ImageRange& part) const { return part.rva >= rva && part.End() <= End(); }
    bool Holds(std::uint32_t place) const { return Holds(ImageRange{place, 1}); }
};

struct ImageSection
{
    std::string name;
    ImageRange memory;
    std::uint32_t fileOffset;
    std::uint32_t fileSize;
    std::uint32_t characteristics;
};

class ImageView
{
    ByteView file;
    std::size_t header; // where "PE" is
    std::vector<ImageSection> sections;

  public:
    // Throws, as its functions do, for what cannot be read.
    explicit ImageView(ByteView content);

    const ByteView& File() const { return file; }
    std::uint32_t U16(Field field) const { return file.U16(OffsetOf(field)); }
    std::uint32_t U32(Field field) const { return file.U32(OffsetOf(field)); }
    std::size_t OffsetOf(Field field) const { return header + static_cast<std::size_t>(field); }
    ImageRange Directory(std::size_t index) const;

    const std::vector<ImageSection>& Sections() const { return sections; }
    const ImageSection& Section(const std::string& name) const;
    // The place in the file of an address whose section has bytes there.
    std::uint64_t OffsetOf(std::uint32_t rva) const;
    std::uint32_t U32At(std::uint32_t rva) const { return file.U32(OffsetOf(rva)); }
    std::string TextAt(std::uint32_t rva) const { return file.Text(OffsetOf(rva)); }
};
