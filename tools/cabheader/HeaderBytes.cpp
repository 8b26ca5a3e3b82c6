// The bytes of the binary instructions as they grow.
#include "tools/cabheader/HeaderBytes.h"

#include "tools/common/Refusal.h"

static void AddNumber(std::vector<std::uint8_t>& bytes, std::size_t number, int size)
{
    static constexpr int bitsOfByte = 8;
    if (number >> (bitsOfByte * size) != 0) {
        throw Refusal("the number " + std::to_string(number) + " does not fit in " + std::to_string(size) +
                      " bytes");
    }
    for (int i = 0; i < size; i++) {
        bytes.push_back(static_cast<std::uint8_t>(number >> (bitsOfByte * i)));
    }
}

void HeaderBytes::Add16(std::size_t number)
{
    AddNumber(bytes, number, 2);
}

void HeaderBytes::Add32(std::size_t number)
{
    AddNumber(bytes, number, 4);
}

void HeaderBytes::AddText(const std::string& text)
{
    bytes.insert(bytes.end(), text.begin(), text.end());
    bytes.push_back(0);
}

void HeaderBytes::AddCountedText(const std::string& text)
{
    Add16(text.size() + 1);
    AddText(text);
}

void HeaderBytes::AddCountedList(const std::vector<std::size_t>& numbers)
{
    Add16(2 * (numbers.size() + 1));
    for (const std::size_t number : numbers) {
        Add16(number);
    }
    Add16(0);
}

void HeaderBytes::Append(const HeaderBytes& more)
{
    bytes.insert(bytes.end(), more.bytes.begin(), more.bytes.end());
}
