// Reads an uncompressed cabinet: header, one folder record, file records, data blocks.
#include "tests/tools/CabinetView.h"

#include <stdexcept>

static void Check(bool good, const std::string& problem)
{
    if (!good) {
        throw std::runtime_error("bad cabinet: " + problem);
    }
}

static std::uint32_t U16(const Bytes& bytes, std::size_t offset)
{
    return bytes.at(offset) | static_cast<std::uint32_t>(bytes.at(offset + 1)) << 8;
}

static std::uint32_t U32(const Bytes& bytes, std::size_t offset)
{
    return U16(bytes, offset) | U16(bytes, offset + 2) << 16;
}

// The length and the place of the data reserved for a signature.
static std::size_t ReservedSize(const Bytes& cabinet)
{
    const std::uint32_t flags = U16(cabinet, 30);
    Check((flags & ~4u) == 0, "one of a set");
    if (flags == 0) {
        return 0;
    }
    Check(U16(cabinet, 38) == 0, "reserved areas in folders or blocks");
    return 4 + U16(cabinet, 36);
}

static Bytes FolderContent(const Bytes& cabinet, std::size_t record)
{
    Check(U16(cabinet, record + 6) == 0, "it is compressed");
    Bytes content;
    std::size_t block = U32(cabinet, record);
    for (std::uint32_t count = U16(cabinet, record + 4); count > 0; count--) {
        const std::uint32_t size = U16(cabinet, block + 4);
        Check(size == U16(cabinet, block + 6), "a block of two sizes");
        Check(block + 8 + size <= cabinet.size(), "a block is cut off");
        const auto begin = cabinet.begin() + static_cast<std::ptrdiff_t>(block + 8);
        content.insert(content.end(), begin, begin + static_cast<std::ptrdiff_t>(size));
        block += 8 + size;
    }
    Check(block == U32(cabinet, 8), "its length is wrong");
    return content;
}

std::vector<CabinetMember> ReadCabinet(const Bytes& cabinet)
{
    const Bytes signature = {'M', 'S', 'C', 'F'};
    Check(cabinet.size() > 36 && Bytes(cabinet.begin(), cabinet.begin() + 4) == signature, "no signature");
    Check(U16(cabinet, 24) == 0x0103, "not version 1.3");
    Check(U16(cabinet, 26) == 1, "more than one folder");
    const std::size_t reserved = ReservedSize(cabinet);
    Check(reserved != 0 || U32(cabinet, 8) == cabinet.size(), "bytes behind its end");
    const Bytes content = FolderContent(cabinet, 36 + reserved);

    std::vector<CabinetMember> members;
    std::size_t record = U32(cabinet, 16);
    std::size_t expectedOffset = 0;
    for (std::uint32_t count = U16(cabinet, 28); count > 0; count--) {
        const std::size_t size = U32(cabinet, record);
        const std::size_t offset = U32(cabinet, record + 4);
        Check(offset == expectedOffset && offset + size <= content.size(), "files overlap or have gaps");
        Check(U16(cabinet, record + 8) == 0, "a file in another folder");
        CabinetMember member{
            "", U16(cabinet, record + 10), U16(cabinet, record + 12), U16(cabinet, record + 14), {}};
        for (record += 16; cabinet.at(record) != 0; record++) {
            member.name += static_cast<char>(cabinet[record]);
        }
        record++;
        const auto begin = content.begin() + static_cast<std::ptrdiff_t>(offset);
        member.content.assign(begin, begin + static_cast<std::ptrdiff_t>(size));
        members.push_back(member);
        expectedOffset += size;
    }
    Check(expectedOffset == content.size(), "content without a file");
    return members;
}

std::vector<std::string> NamesOf(const std::vector<CabinetMember>& members)
{
    std::vector<std::string> names;
    for (const CabinetMember& member : members) {
        names.push_back(member.name);
    }
    return names;
}
