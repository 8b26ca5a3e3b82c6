// The loop, the conditions, and what lies between the guest and the host.
#include "tools/runner/machine/Processor.h"

#include <array>

namespace runner {

// What a library function leaves behind where it may: values that lead nowhere.
static constexpr Word spoiltBits = 0xDEAD0000;
static constexpr Word thumbBit = 1;
static constexpr Word always = 14;

// Of a condition.
struct Condition
{
    std::uint16_t holds = 0; // a bit for each of the sixteen states of the flags
    unsigned flags = 0;      // those it depends on
};

static constexpr bool Holds(unsigned condition, unsigned flags)
{
    const bool n = (flags & NegativeFlag) != 0;
    const bool z = (flags & ZeroFlag) != 0;
    const bool c = (flags & CarryFlag) != 0;
    const bool v = (flags & OverflowFlag) != 0;
    const bool holds[] = {z, c, n, v, c && !z, n == v, !z && n == v};
    return condition < 14 ? holds[condition / 2] != (condition % 2 != 0) : condition == 14;
}

static constexpr std::array<Condition, 16> ConditionTable()
{
    std::array<Condition, 16> table{};
    for (unsigned condition = 0; condition < 16; condition++) {
        for (unsigned flags = 0; flags < 16; flags++) {
            const bool holds = Holds(condition, flags);
            table[condition].holds |= static_cast<std::uint16_t>(holds << flags);
            for (unsigned flag = 1; flag < 16; flag *= 2) {
                table[condition].flags |= Holds(condition, flags ^ flag) != holds ? flag : 0;
            }
        }
    }
    return table;
}
static constexpr std::array<Condition, 16> conditions = ConditionTable();

void Processor::Refuse(FindingKind kind, const char* text)
{
    Finding finding;
    finding.kind = kind;
    finding.text = text;
    sink.Report(finding);
}

bool Processor::ConditionHolds(Word number)
{
    const Condition& condition = conditions[number];
    const Flags& flags = state.flags;
    if ((flags.undefined & condition.flags) != 0) [[unlikely]] {
        Refuse(FindingKind::Undefined, "a condition depends on it");
    }
    const unsigned bits = (flags.n ? NegativeFlag : 0u) | (flags.z ? ZeroFlag : 0u) |
                          (flags.c ? CarryFlag : 0u) | (flags.v ? OverflowFlag : 0u);
    return (condition.holds >> bits & 1) != 0;
}

void Processor::RefuseFetch(Address address)
{
    Finding finding;
    finding.kind = (address & thumbBit) != 0           ? FindingKind::Thumb
                   : (address & 3) != 0                ? FindingKind::Unaligned
                   : memory.ProtectionAt(address) == 0 ? FindingKind::Unmapped
                                                       : FindingKind::Protected;
    finding.access = Access::Execute;
    finding.address = address;
    // The place that is named is that of the jump.
    sink.Report(finding);
}

Word Processor::Run(Address start)
{
    next = start;
    while (next < trapBase) {
        const Address here = next;
        if ((here & 3) != 0 || (memory.ProtectionAt(here) & CanExecute) == 0) [[unlikely]] {
            RefuseFetch(here);
        }
        place = here;
        next = here + wordSize;
        count++;
        if (here - profileBegin < profileLength) {
            profile[(here - profileBegin) / wordSize]++;
        }
        const Word instruction = memory.Fetch(here);
        const Word condition = instruction >> 28;
        if (condition == always || ConditionHolds(condition)) {
            Execute(instruction);
        } else if (condition == 15) {
            Refuse(FindingKind::UnknownInstruction);
        }
    }
    // What is served is the caller's business, not the import stub's.
    trail.Drop(state.Bits(StackRegister));
    // Behind a return there is no call.
    if (state.Bits(LinkRegister) < trapBase) {
        place = state.Bits(LinkRegister) - wordSize;
    }
    return (next - trapBase) / wordSize;
}

void Processor::Execute(Word instruction)
{
    switch (instruction >> 25 & 7) {
    case 0:
        if ((instruction & 0x90) == 0x90) {
            ExecuteExtension(instruction);
            return;
        }
        [[fallthrough]];
    case 1:
        if ((instruction & 0x0FFFFFF0) == 0x012FFF10) {
            Exchange(instruction & 15);
        } else if ((instruction & 0x01900000) == 0x01000000) {
            MoveStatus(instruction);
        } else {
            Process(instruction);
        }
        return;
    case 2:
        Transfer(instruction);
        return;
    case 3:
        if ((instruction & 0x10) != 0) {
            Refuse(FindingKind::UnknownInstruction);
        }
        Transfer(instruction);
        return;
    case 4:
        TransferMany(instruction);
        return;
    case 5:
        Branch(instruction);
        return;
    default: // of coprocessors, and calls of the system
        Refuse(FindingKind::UnknownInstruction);
    }
}

// Multiplications and accesses of other sizes share a corner of the data processing's codes.
void Processor::ExecuteExtension(Word instruction)
{
    if ((instruction & 0x60) != 0) {
        TransferHalf(instruction);
    } else if ((instruction & 0x0FC00000) == 0) {
        Multiply(instruction);
    } else if ((instruction & 0x0F800000) == 0x00800000) {
        MultiplyLong(instruction);
    } else if ((instruction & 0x0FB00F00) == 0x01000000) {
        Swap(instruction);
    } else {
        Refuse(FindingKind::UnknownInstruction);
    }
}

Address Processor::Answer(Word result)
{
    const Address back = state.Bits(LinkRegister);
    state.r[0] = {result, 0};
    for (const unsigned index : {1u, 2u, 3u, unsigned{ScratchRegister}, unsigned{LinkRegister}}) {
        SpoilRegister(index, spoiltBits + index);
    }
    SpoilFlags();
    return back;
}

Address Processor::Answer64(std::uint64_t result)
{
    const Address back = Answer(static_cast<Word>(result));
    state.r[1] = {static_cast<Word>(result >> 32), 0};
    return back;
}

Word Processor::Argument(unsigned index)
{
    constexpr unsigned inRegisters = 4;
    if (index >= inRegisters) {
        return memory.Read<Word>(state.Bits(StackRegister) + wordSize * (index - inRegisters));
    }
    NeedDefined(state.r[index], "it is handed over");
    return state.Bits(index);
}

void Processor::SetRegister(unsigned index, Word bits)
{
    SetResult(index, {bits, 0});
}

void Processor::SpoilRegister(unsigned index, Word bits)
{
    state.r[index] = {bits, allBits};
}

void Processor::SpoilFlags()
{
    state.flags = {true, true, true, true, AllFlags};
}

void Processor::Restore(const Registers& saved)
{
    state = saved;
    memory.MoveStackPointer(saved.Bits(StackRegister));
    place = saved.Bits(LinkRegister) - wordSize;
}

void Processor::Profile(Address begin, Word length)
{
    profileBegin = begin;
    profileLength = length;
    profile.assign(length / wordSize, 0);
}

void Processor::SetResult(unsigned index, Value value)
{
    if (index == ProgramCounter) {
        Jump(value);
        return;
    }
    if (index == StackRegister) {
        NeedDefined(value, "it becomes the stack pointer");
        memory.MoveStackPointer(value.bits);
    }
    state.r[index] = value;
}

void Processor::Jump(Value target)
{
    NeedDefined(target, "it is jumped to");
    next = target.bits;
}

// BX, which may lead to Thumb code: its address is odd.
void Processor::Exchange(unsigned index)
{
    if (index == ProgramCounter) {
        Refuse(FindingKind::Unpredictable, "an exchange with the program counter");
    }
    // There is no instruction for calls through a pointer: the link register is set by the one before.
    if (index == LinkRegister) {
        trail.Drop(state.Bits(StackRegister));
    } else if (state.Bits(LinkRegister) == next) {
        trail.Add(place, state.Bits(StackRegister));
    }
    Jump(state.r[index]);
}

void Processor::Branch(Word instruction)
{
    const bool link = (instruction & 0x01000000) != 0;
    if (link) {
        state.r[LinkRegister] = {next, 0};
        trail.Add(place, state.Bits(StackRegister));
    }
    // 24 bits with a sign, in words.
    next = place + 8 + static_cast<Word>(static_cast<std::int32_t>(instruction << 8) >> 6);
}

} // namespace runner
