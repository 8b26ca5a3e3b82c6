// The program's picture file, to spoil it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

using Bytes = std::vector<unsigned char>;

// Where a picture stands in the file.
struct PictureEntry
{
    uint32_t id, offset, size;
};

// A picture file's head: magic, version, three words, the number of entries.
Bytes PictureFileHead(uint32_t count, uint32_t version = 1);
// A file that consists of a head and a directory.
Bytes PictureDirectory(const std::vector<PictureEntry>& entries);

// An entry of a file's directory by its picture's id. False without such an entry.
bool ReadPictureEntry(const Bytes& file, uint32_t id, PictureEntry& entry);
bool ChangePictureEntry(Bytes& file, uint32_t id, const PictureEntry& entry);

// Fails the test when it cannot be read.
Bytes ReadBytes(const std::wstring& path);
bool WriteBytes(const std::wstring& path, const Bytes& bytes);
