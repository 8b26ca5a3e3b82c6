// Builds the bytes of a picture container.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

// The same entries always give the same bytes, in whatever order they were added: directory and data go by
// id.
class ContainerWriter
{
    std::map<std::uint32_t, std::vector<std::uint8_t>> entries;

  public:
    // Refuses an id that is already there.
    void Add(std::uint32_t id, std::vector<std::uint8_t> bytes);
    // Refuses a container whose offsets would not fit in 32 bits.
    std::vector<std::uint8_t> Build() const;
};
