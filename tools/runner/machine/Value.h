// A word of the guest, and which of its bits nobody has ever written.
#pragma once

#include <cstdint>

namespace runner {

using Word = std::uint32_t;
using Address = std::uint32_t;

inline constexpr Word wordSize = sizeof(Word);
inline constexpr Word allBits = 0xFFFFFFFF;

// An undefined bit may be copied about, as the padding of a structure is. It must not decide anything.
struct Value
{
    Word bits = 0;
    Word undefined = 0; // a mask

    bool IsDefined() const { return undefined == 0; }
};

// A carry runs upwards: of a sum, every bit from the lowest undefined one on is undefined.
constexpr Word Spread(Word undefined)
{
    return undefined | (0 - undefined);
}

} // namespace runner
