// The bytes of the binary instructions as they grow: little-endian numbers and texts that end with a zero
// byte.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

class HeaderBytes
{
    std::vector<std::uint8_t> bytes;

  public:
    // Both refuse a number that does not fit.
    void Add16(std::size_t number);
    void Add32(std::size_t number);
    void AddText(const std::string& text);
    // A text behind its length.
    void AddCountedText(const std::string& text);
    // Numbers and a final zero, behind their length in bytes.
    void AddCountedList(const std::vector<std::size_t>& numbers);
    void Append(const HeaderBytes& more);

    std::size_t Size() const { return bytes.size(); }
    const std::vector<std::uint8_t>& Bytes() const { return bytes; }
};
