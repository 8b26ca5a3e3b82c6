// The registers a program sees.
#pragma once

#include "tools/runner/machine/Value.h"

namespace runner {

enum FlagMask : unsigned
{
    OverflowFlag = 1,
    CarryFlag = 2,
    ZeroFlag = 4,
    NegativeFlag = 8,
    AllFlags = 15,
};

struct Flags
{
    bool n = false;
    bool z = false;
    bool c = false;
    bool v = false;
    unsigned undefined = 0; // a FlagMask: an undefined value decided these, or nobody has

    void SetUndefined(unsigned mask, bool on) { undefined = on ? undefined | mask : undefined & ~mask; }
};

enum RegisterNumber : unsigned
{
    ScratchRegister = 12,
    StackRegister = 13,
    LinkRegister = 14,
    ProgramCounter = 15,
};

struct Registers
{
    // The last one is not in use: where an instruction is read or run, the processor knows.
    Value r[16];
    Flags flags;

    Word Bits(unsigned index) const { return r[index].bits; }
};

} // namespace runner
