// A copy of the built image in memory, to be broken, and the files beside it.
#pragma once

#include "tests/device/image/ImageView.h"

class PatchedImage
{
    std::vector<std::uint8_t> bytes;

  public:
    PatchedImage();

    ImageView View() const { return ImageView(ByteView(bytes)); }
    std::size_t Size() const { return bytes.size(); }
    void Resize(std::size_t size) { bytes.resize(size); }
    // These change the low 16 bits, 32 bits, or a text with its zero; by place in the file, field or address.
    void Put16(std::uint64_t offset, std::uint32_t value);
    void Put32(std::uint64_t offset, std::uint32_t value);
    void Put16(Field field, std::uint32_t value) { Put16(View().OffsetOf(field), value); }
    void Put32(Field field, std::uint32_t value) { Put32(View().OffsetOf(field), value); }
    void Put32At(std::uint32_t rva, std::uint32_t value) { Put32(View().OffsetOf(rva), value); }
    void PutTextAt(std::uint32_t rva, const std::string& text);

    std::vector<std::string> Faults() const;
};

// One of the complaints, or the only one, begins with these words.
void ExpectFault(const PatchedImage& image, const std::string& words);
void ExpectOnlyFault(const PatchedImage& image, const std::string& words);
