// A machine with a few instructions, memory to work on, and findings that are thrown.
#pragma once

#include "tools/runner/machine/Machine.h"

#include "tests/tools/machine/ThrownFinding.h"

#include <span>

namespace runner {

class SmallMachine
{
    ThrowingSink sink;

  public:
    static constexpr Address code = 0x00010000; // a page that may be read and executed
    static constexpr Address data = 0x00030000; // a page of zeros that may be written
    static constexpr Address stackTop = 0x00060000;
    static constexpr Address heapBegin = 0x00080000;
    static constexpr Word heapSize = 0x00040000;
    static constexpr Word stackReserve = 0x4000;
    // The trap that a program of this class ends with.
    static constexpr Word endTrap = 7;

    Machine machine;
    Registers before; // what the program starts with

    SmallMachine();

    // Runs these instructions and the way out behind them. What is left in the registers is State.
    const Registers& Run(const std::vector<Word>& program);
    const Registers& State() const { return machine.processor.State(); }
    Word Bits(unsigned index) const { return State().Bits(index); }
    void PutWord(Address address, Word value) { machine.memory.Write<Word>(address, value); }
    Word WordAt(Address address) { return machine.memory.Read<Word>(address); }
};

// As the processor's status register has them, with letters: "nZCv". Set ones are capital.
std::string FlagText(const Flags& flags);
Flags FlagsOf(const std::string& text);

} // namespace runner
