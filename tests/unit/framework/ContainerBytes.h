// Picture containers as bytes, well formed or spoilt on purpose.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

using Bytes = std::vector<unsigned char>;

struct EntryBytes
{
    uint32_t id;
    Bytes data;
};

// The bytes of the magic, the version, three header words 11, 22, 33 and the count: 27 in all.
Bytes HeaderBytes(uint32_t count, uint32_t version = 1, const std::string& magic = std::string("QV_ZRS", 7));

// A directory record; the reserved words have values of their own.
Bytes RecordBytes(uint32_t id, uint32_t offset, uint32_t size);

// A whole container with the data one after the other behind the directory.
Bytes ContainerBytes(const std::vector<EntryBytes>& entries);

Bytes operator+(Bytes left, const Bytes& right);

// 3 x 2 pixels. Above: opaque red, green and blue; below: transparent, opaque (10, 20, 30), opaque black.
Bytes PngBytes();
