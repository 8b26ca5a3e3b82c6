// Loads and stores of one value, and swaps.
#include "tools/runner/machine/Processor.h"

namespace runner {

static constexpr Word loadBit = 0x00100000;
static constexpr Word writeBackBit = 0x00200000;
static constexpr Word byteBit = 0x00400000;
static constexpr Word upBit = 0x00800000;
static constexpr Word beforeBit = 0x01000000;

Processor::Reach Processor::ReachOf(Word instruction, Value offset)
{
    const unsigned rn = instruction >> 16 & 15;
    const Value base = Operand(rn);
    NeedDefined(base, "it is used as an address");
    NeedDefined(offset, "it is used as an address");
    const Address moved = (instruction & upBit) != 0 ? base.bits + offset.bits : base.bits - offset.bits;
    const bool before = (instruction & beforeBit) != 0;
    const bool moves = !before || (instruction & writeBackBit) != 0;
    if (moves && (rn == ProgramCounter || rn == (instruction >> 12 & 15))) {
        Refuse(FindingKind::Unpredictable, "the base is moved and transferred");
    }
    return {before ? moved : base.bits, moved, moves};
}

template <class T>
Value Processor::LoadThenMove(Word instruction, Value offset)
{
    const Reach reach = ReachOf(instruction, offset);
    const Value value = memory.Load<T>(reach.address);
    // What is popped lies below the stack pointer from then on.
    if (reach.moves) {
        SetResult(instruction >> 16 & 15, {reach.moved, 0});
    }
    return value;
}

template <class T>
void Processor::MoveAndStore(Word instruction, Value offset)
{
    const unsigned rn = instruction >> 16 & 15;
    const unsigned rd = instruction >> 12 & 15;
    const Reach reach = ReachOf(instruction, offset);
    // What is pushed lies below the stack pointer until it has moved.
    const bool moveFirst = reach.moves && (instruction & upBit) == 0;
    if (moveFirst) {
        SetResult(rn, {reach.moved, 0});
    }
    // The program counter is stored as three instructions further on.
    memory.Store<T>(reach.address, rd == ProgramCounter ? Value{place + 12, 0} : state.r[rd]);
    if (reach.moves && !moveFirst) {
        SetResult(rn, {reach.moved, 0});
    }
}

void Processor::Transfer(Word instruction)
{
    const unsigned rd = instruction >> 12 & 15;
    Value offset{instruction & 0xFFF, 0};
    if ((instruction & 0x02000000) != 0) {
        if ((instruction & 15) == ProgramCounter) {
            Refuse(FindingKind::Unpredictable, "the program counter as an offset");
        }
        Value carry = CarryIn();
        offset = Shift(instruction, carry);
    }
    const bool isByte = (instruction & byteBit) != 0;
    if (isByte && rd == ProgramCounter) {
        Refuse(FindingKind::Unpredictable, "a byte of the program counter");
    }
    if ((instruction & loadBit) == 0) {
        isByte ? MoveAndStore<std::uint8_t>(instruction, offset) : MoveAndStore<Word>(instruction, offset);
    } else {
        SetResult(rd, isByte ? LoadThenMove<std::uint8_t>(instruction, offset)
                             : LoadThenMove<Word>(instruction, offset));
    }
}

// The highest of the loaded bits fills those above it, known or not.
template <class T>
static Value WithSign(Value value)
{
    const auto extended = [](Word bits) { return static_cast<Word>(std::int32_t{static_cast<T>(bits)}); };
    return {extended(value.bits), extended(value.undefined)};
}

void Processor::TransferHalf(Word instruction)
{
    const unsigned rd = instruction >> 12 & 15;
    const unsigned rm = instruction & 15;
    const bool isConstant = (instruction & byteBit) != 0;
    const bool before = (instruction & beforeBit) != 0;
    if (rd == ProgramCounter || (!isConstant && rm == ProgramCounter) ||
        (!before && (instruction & writeBackBit) != 0)) {
        Refuse(FindingKind::Unpredictable, "a half word of the program counter");
    }
    const Value offset = isConstant ? Value{(instruction >> 4 & 0xF0) | rm, 0} : state.r[rm];
    switch (instruction & (loadBit | 0x60)) {
    case 0x20:
        MoveAndStore<std::uint16_t>(instruction, offset);
        return;
    case loadBit | 0x20:
        SetResult(rd, LoadThenMove<std::uint16_t>(instruction, offset));
        return;
    case loadBit | 0x40:
        SetResult(rd, WithSign<std::int8_t>(LoadThenMove<std::uint8_t>(instruction, offset)));
        return;
    case loadBit | 0x60:
        SetResult(rd, WithSign<std::int16_t>(LoadThenMove<std::uint16_t>(instruction, offset)));
        return;
    default: // transfers of register pairs
        Refuse(FindingKind::UnknownInstruction);
    }
}

void Processor::Swap(Word instruction)
{
    const unsigned rn = instruction >> 16 & 15;
    const unsigned rd = instruction >> 12 & 15;
    const unsigned rm = instruction & 15;
    if (rn == ProgramCounter || rd == ProgramCounter || rm == ProgramCounter || rn == rm || rn == rd) {
        Refuse(FindingKind::Unpredictable, "a swap with its own address");
    }
    const Value base = state.r[rn];
    NeedDefined(base, "it is used as an address");
    const Value stored = state.r[rm];
    if ((instruction & byteBit) != 0) {
        const Value loaded = memory.Load<std::uint8_t>(base.bits);
        memory.Store<std::uint8_t>(base.bits, stored);
        SetResult(rd, loaded);
    } else {
        const Value loaded = memory.Load<Word>(base.bits);
        memory.Store<Word>(base.bits, stored);
        SetResult(rd, loaded);
    }
}

} // namespace runner
