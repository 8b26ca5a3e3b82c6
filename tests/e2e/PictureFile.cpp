// The program's picture file, to spoil it.
#include "tests/e2e/PictureFile.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstring>

static constexpr size_t headSize = 27;
static constexpr size_t entrySize = 20;

static void Append32(Bytes& bytes, uint32_t value)
{
    for (int shift = 0; shift < 32; shift += 8) {
        bytes.push_back(static_cast<unsigned char>(value >> shift));
    }
}

Bytes PictureFileHead(uint32_t count, uint32_t version)
{
    Bytes bytes = {'Q', 'V', '_', 'Z', 'R', 'S', 0};
    Append32(bytes, version);
    for (uint32_t word : {0xFFFFFFFFu, 0u, 7u}) {
        Append32(bytes, word);
    }
    Append32(bytes, count);
    return bytes;
}

Bytes PictureDirectory(const std::vector<PictureEntry>& entries)
{
    Bytes bytes = PictureFileHead(static_cast<uint32_t>(entries.size()));
    for (const PictureEntry& entry : entries) {
        for (uint32_t value : {entry.id, entry.offset, entry.size, 0xFFFFFFFFu, 0u}) {
            Append32(bytes, value);
        }
    }
    return bytes;
}

// The place of an entry in a file, 0 without one.
static size_t PlaceOf(const Bytes& file, uint32_t id)
{
    uint32_t count = 0;
    if (file.size() >= headSize) {
        memcpy(&count, file.data() + headSize - sizeof(count), sizeof(count));
    }
    for (size_t place = headSize; count > 0 && place + entrySize <= file.size();
         place += entrySize, count--) {
        if (memcmp(file.data() + place, &id, sizeof(id)) == 0) {
            return place;
        }
    }
    return 0;
}

bool ReadPictureEntry(const Bytes& file, uint32_t id, PictureEntry& entry)
{
    const size_t place = PlaceOf(file, id);
    if (place) {
        memcpy(&entry, file.data() + place, sizeof(entry));
    }
    return place != 0;
}

bool ChangePictureEntry(Bytes& file, uint32_t id, const PictureEntry& entry)
{
    const size_t place = PlaceOf(file, id);
    if (place) {
        memcpy(file.data() + place, &entry, sizeof(entry));
    }
    return place != 0;
}

Bytes ReadBytes(const std::wstring& path)
{
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        ADD_FAILURE() << "error " << GetLastError();
        return {};
    }
    Bytes bytes(GetFileSize(file, nullptr));
    DWORD read = 0;
    EXPECT_TRUE(ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr));
    CloseHandle(file);
    return bytes;
}

bool WriteBytes(const std::wstring& path, const Bytes& bytes)
{
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    const bool whole =
        file != INVALID_HANDLE_VALUE &&
        WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != FALSE &&
        written == bytes.size();
    CloseHandle(file);
    return whole;
}
