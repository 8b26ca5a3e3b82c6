// The small machine of the tests.
#include "tests/tools/machine/SmallMachine.h"

#include <cctype>

namespace runner {

// Small, because every test makes one, and a sanitiser has to take note of every byte.
static constexpr Layout small = {0x00100000, SmallMachine::stackTop, SmallMachine::heapBegin,
                                 SmallMachine::heapSize, 0x000E0000};

SmallMachine::SmallMachine() : machine(sink, small)
{
    machine.memory.Map(code, GuestMemory::pageSize, CanRead | CanExecute);
    machine.memory.Map(data, GuestMemory::pageSize, CanRead | CanWrite);
    machine.memory.SetStack(stackTop, stackReserve);
    before.r[StackRegister] = {stackTop, 0};
}

const Registers& SmallMachine::Run(const std::vector<Word>& program)
{
    std::vector<Word> words = program;
    words.push_back(0xE51FF004); // ldr pc, [pc, #-4]
    words.push_back(TrapAddress(endTrap));
    std::memcpy(machine.memory.Host(code), words.data(), words.size() * sizeof(Word));
    machine.processor.Restore(before);
    EXPECT_EQ(machine.processor.Run(code), endTrap);
    return State();
}

std::string FlagText(const Flags& flags)
{
    std::string text;
    text += flags.n ? 'N' : 'n';
    text += flags.z ? 'Z' : 'z';
    text += flags.c ? 'C' : 'c';
    text += flags.v ? 'V' : 'v';
    return text;
}

Flags FlagsOf(const std::string& text)
{
    const auto isSet = [&text](std::size_t index) { return std::isupper(text.at(index)) != 0; };
    return {isSet(0), isSet(1), isSet(2), isSet(3), 0};
}

} // namespace runner
