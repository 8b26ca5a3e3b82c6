// The walk over the import tables.
#include "tests/device/image/ImportTables.h"

static constexpr std::uint32_t rowSize = 20;

static std::vector<std::uint32_t> ReadTable(const ImageView& image, std::uint32_t rva)
{
    std::vector<std::uint32_t> table;
    while (const std::uint32_t value = image.U32At(rva)) {
        table.push_back(value);
        rva += 4;
    }
    return table;
}

ImportTables ReadImportTables(const ImageView& image)
{
    ImportTables tables;
    const ImageRange directory = image.Directory(1);
    for (std::uint32_t rva = directory.rva; rva + rowSize <= directory.End(); rva += rowSize) {
        const ByteView row = image.File().Part(image.OffsetOf(rva), rowSize);
        const std::uint32_t lookupRva = row.U32(0);
        const std::uint32_t nameRva = row.U32(12);
        const std::uint32_t addressRva = row.U32(16);
        const bool bound = row.U32(4) != 0 || row.U32(8) != 0;
        if (lookupRva == 0 && nameRva == 0 && addressRva == 0 && !bound) {
            tables.terminated = rva + rowSize == directory.End();
            break;
        }
        tables.libraries.push_back({image.TextAt(nameRva), lookupRva, addressRva, bound,
                                    ReadTable(image, lookupRva), ReadTable(image, addressRva)});
    }
    return tables;
}
