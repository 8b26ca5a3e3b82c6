// Picture containers as bytes.
#include "tests/unit/framework/ContainerBytes.h"

static Bytes WordBytes(uint32_t word)
{
    return {static_cast<unsigned char>(word), static_cast<unsigned char>(word >> 8),
            static_cast<unsigned char>(word >> 16), static_cast<unsigned char>(word >> 24)};
}

Bytes operator+(Bytes left, const Bytes& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

Bytes HeaderBytes(uint32_t count, uint32_t version, const std::string& magic)
{
    return Bytes(magic.begin(), magic.end()) + WordBytes(version) + WordBytes(11) + WordBytes(22) +
           WordBytes(33) + WordBytes(count);
}

Bytes RecordBytes(uint32_t id, uint32_t offset, uint32_t size)
{
    return WordBytes(id) + WordBytes(offset) + WordBytes(size) + WordBytes(0xAAAAAAAA) +
           WordBytes(0xBBBBBBBB);
}

Bytes ContainerBytes(const std::vector<EntryBytes>& entries)
{
    const auto count = static_cast<uint32_t>(entries.size());
    Bytes whole = HeaderBytes(count);
    uint32_t offset = 27 + 20 * count;
    for (const EntryBytes& entry : entries) {
        const auto size = static_cast<uint32_t>(entry.data.size());
        whole = whole + RecordBytes(entry.id, offset, size);
        offset += size;
    }
    for (const EntryBytes& entry : entries) {
        whole = whole + entry.data;
    }
    return whole;
}

Bytes PngBytes()
{
    return {0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A, 0x00, 0x00, 0x00, 0x0D, 0x49, 0x48,
            0x44, 0x52, 0x00, 0x00, 0x00, 0x03, 0x00, 0x00, 0x00, 0x02, 0x08, 0x06, 0x00, 0x00,
            0x00, 0x9D, 0x74, 0x66, 0x1A, 0x00, 0x00, 0x00, 0x19, 0x49, 0x44, 0x41, 0x54, 0x78,
            0xDA, 0x63, 0xF8, 0xCF, 0xC0, 0xF0, 0x1F, 0x0C, 0x19, 0xFE, 0x83, 0x49, 0x06, 0x2E,
            0x11, 0x39, 0x10, 0xF5, 0x1F, 0x00, 0x85, 0x26, 0x09, 0x34, 0xA0, 0x0E, 0x20, 0xA9,
            0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4E, 0x44, 0xAE, 0x42, 0x60, 0x82};
}
