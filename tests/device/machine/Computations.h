// Calculations with known operands, compiled for the building machine and for the device: both have to agree.
#pragma once

#include <stdint.h>

namespace computations {

struct Computation
{
    const char* name;
    uint32_t (*run)();
};

inline constexpr unsigned computationCount = 12;
extern const Computation computations[computationCount];

} // namespace computations
