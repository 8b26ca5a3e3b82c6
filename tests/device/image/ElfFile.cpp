// Section headers and the symbol table.
#include "tests/device/image/ElfFile.h"

#include <algorithm>
#include <stdexcept>

ElfFile::ElfFile(ByteView content)
{
    if (content.U32(0) != 0x464C457F || content.U16(4) != 0x0101) {
        throw std::runtime_error("not an ELF file of 32 bits");
    }
    const auto section = [&content](std::uint32_t index) {
        return content.Part(content.U32(32) + 40 * std::uint64_t{index}, 40);
    };
    for (std::uint32_t index = 0; index < content.U16(48); index++) {
        const ByteView row = section(index);
        const bool inMemory = (row.U32(8) & 2) != 0;
        if (inMemory && row.U32(20) != 0) {
            memoryEnd = std::max(memoryEnd, row.U32(12) + row.U32(20));
        }
        const bool isSymbolTable = row.U32(4) == 2;
        if (!isSymbolTable) {
            continue;
        }
        const ByteView namesRow = section(row.U32(24));
        const ByteView names = content.Part(namesRow.U32(16), namesRow.U32(20));
        const ByteView table = content.Part(row.U32(16), row.U32(20));
        for (std::size_t place = 0; place < table.Size(); place += 16) {
            symbols[names.Text(table.U32(place))] = table.U32(place + 4);
        }
    }
    if (symbols.empty()) {
        throw std::runtime_error("it has no symbols");
    }
}
