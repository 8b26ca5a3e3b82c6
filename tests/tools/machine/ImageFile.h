// A small executable for ARM Windows CE in memory, to be loaded or broken.
#pragma once

#include "tools/runner/machine/Value.h"

#include <cstddef>
#include <string>
#include <vector>

namespace runner {

class ImageFile
{
    std::vector<std::uint8_t> bytes;

  public:
    static constexpr Address base = 0x00010000;
    static constexpr Address entry = base + 0x1010;
    static constexpr Address dataBegin = base + 0x2000;
    // Places in the file.
    static constexpr std::size_t header = 0x80;
    static constexpr std::size_t firstSection = header + 248;
    static constexpr std::size_t importDirectory = 0x1100; // in the code's section, as rva too
    static constexpr std::size_t lookups = 0x1180;
    static constexpr std::size_t slots = 0x2000; // in the data's section, as rva too

    // With code, 2 pages of data of which one is in the file, and 3 imports of 2 libraries.
    ImageFile();

    const std::vector<std::uint8_t>& Bytes() const { return bytes; }
    void Resize(std::size_t size) { bytes.resize(size); }
    void Put16(std::size_t place, Word value);
    void Put32(std::size_t place, Word value);
    void PutText(std::size_t place, const std::string& text);

  private:
    void PutHeaders();
    void PutSection(std::size_t place, const std::string& name, Word rva, Word size, Word fileSize,
                    Word flags);
    void PutImports();
};

} // namespace runner
