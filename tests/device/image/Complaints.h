// Collects what is wrong with an image, in plain sentences.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class Complaints
{
    std::vector<std::string> sentences;

  public:
    const std::vector<std::string>& All() const { return sentences; }
    void Require(bool good, const std::string& complaint);
    // Complains with both values.
    void RequireEqual(const std::string& what, std::uint64_t actual, std::uint64_t expected);
};
