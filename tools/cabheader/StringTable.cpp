// The numbered strings that paths in the binary instructions are made of.
#include "tools/cabheader/StringTable.h"

#include <algorithm>

std::size_t StringTable::Number(const std::string& text)
{
    const auto found = std::find(strings.begin(), strings.end(), text);
    const auto number = static_cast<std::size_t>(found - strings.begin()) + 1;
    if (found == strings.end()) {
        strings.push_back(text);
    }
    return number;
}

std::vector<std::size_t> StringTable::Numbers(const std::vector<std::string>& texts)
{
    std::vector<std::size_t> numbers;
    for (const std::string& text : texts) {
        numbers.push_back(Number(text));
    }
    return numbers;
}

HeaderBytes StringTable::Bytes() const
{
    HeaderBytes bytes;
    for (std::size_t i = 0; i < strings.size(); i++) {
        bytes.Add16(i + 1);
        bytes.AddCountedText(strings[i]);
    }
    return bytes;
}
