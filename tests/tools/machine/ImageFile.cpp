// The bytes of the small executable.
#include "tests/tools/machine/ImageFile.h"

#include <algorithm>

namespace runner {

ImageFile::ImageFile() : bytes(0x3000)
{
    PutHeaders();
    PutSection(firstSection, ".text", 0x1000, 0x1000, 0x1000, 0x60000020);
    PutSection(firstSection + 40, ".data", 0x2000, 0x1800, 0x1000, 0xC0000040);
    Put32(0x1010, 0xE3A00005); // mov r0, #5
    Put32(0x1014, 0xE12FFF1E); // bx lr
    PutImports();
    Put32(0x2FFC, 0x12345678);
}

void ImageFile::Put16(std::size_t place, Word value)
{
    bytes.at(place) = static_cast<std::uint8_t>(value);
    bytes.at(place + 1) = static_cast<std::uint8_t>(value >> 8);
}

void ImageFile::Put32(std::size_t place, Word value)
{
    Put16(place, value);
    Put16(place + 2, value >> 16);
}

void ImageFile::PutText(std::size_t place, const std::string& text)
{
    std::ranges::copy(text, bytes.begin() + static_cast<std::ptrdiff_t>(place));
    bytes.at(place + text.size()) = 0;
}

void ImageFile::PutHeaders()
{
    PutText(0, "MZ");
    Put32(0x3C, header);
    PutText(header, "PE");
    Put16(header + 4, 0x1C0);  // machine
    Put16(header + 6, 2);      // sections
    Put16(header + 20, 0xE0);  // size of the optional header
    Put16(header + 22, 0x10F); // characteristics
    Put16(header + 24, 0x10B); // kind
    Put32(header + 40, entry - base);
    Put32(header + 52, base);
    Put32(header + 80, 0x4000); // size of the image
    Put32(header + 84, 0x1000); // and of the headers
    Put16(header + 92, 9);      // subsystem
    Put32(header + 96, 0x8000); // stack
    Put32(header + 128, importDirectory);
    Put32(header + 132, 60);
}

void ImageFile::PutSection(std::size_t place, const std::string& name, Word rva, Word size, Word fileSize,
                           Word flags)
{
    PutText(place, name);
    Put32(place + 8, size);
    Put32(place + 12, rva);
    Put32(place + 16, fileSize);
    Put32(place + 20, rva);
    Put32(place + 36, flags);
}

void ImageFile::PutImports()
{
    const Word first = 0x80000054; // by number
    const Word second = 0x1200;
    const Word third = 0x1210;
    const auto putLibrary = [this](std::size_t row, std::size_t table, Word name) {
        Put32(row, static_cast<Word>(lookups + table));
        Put32(row + 12, name);
        Put32(row + 16, static_cast<Word>(slots + table));
    };
    putLibrary(importDirectory, 0, 0x1220);
    putLibrary(importDirectory + 20, 12, 0x1230);
    const Word entries[] = {second, first, 0, third, 0};
    for (std::size_t index = 0; index < std::size(entries); index++) {
        Put32(lookups + 4 * index, entries[index]);
        Put32(slots + 4 * index, entries[index]);
    }
    PutText(second + 2, "GetDC");
    PutText(third + 2, "CoCreate");
    PutText(0x1220, "aygshell.dll");
    PutText(0x1230, "ole32.dll");
}

} // namespace runner
