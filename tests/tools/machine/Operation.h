// Instructions that make r0 out of r1 and r2, and the flags they leave.
#pragma once

#include "tools/runner/machine/Registers.h"

#include <span>

namespace runner {

// What r0 holds before: of instructions that only compare it is the result.
inline constexpr Word untouched = 0x5A5A5A5A;

struct OperationRow
{
    const char* text;
    Word instruction;
    Word a; // r1
    Word b; // r2
    const char* flagsBefore;
    Word result;
    const char* flagsAfter;
};

void CheckOperations(std::span<const OperationRow> rows);

} // namespace runner
