// The numbered strings that paths in the binary instructions are made of.
#pragma once

#include "tools/cabheader/HeaderBytes.h"

#include <string>
#include <vector>

// The same string has one number, however often it is used; the first is 1.
class StringTable
{
    std::vector<std::string> strings;

  public:
    std::size_t Number(const std::string& text);
    std::vector<std::size_t> Numbers(const std::vector<std::string>& texts);

    std::size_t Count() const { return strings.size(); }
    HeaderBytes Bytes() const;
};
