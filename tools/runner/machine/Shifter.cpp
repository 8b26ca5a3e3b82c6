// The second operand of the data processing: a constant, or a register on its way through the shifter.
#include "tools/runner/machine/Processor.h"

#include <bit>

namespace runner {

static Value Rotated(Value value, unsigned distance)
{
    return {std::rotr(value.bits, static_cast<int>(distance)),
            std::rotr(value.undefined, static_cast<int>(distance))};
}

static Value Bit(Value value, unsigned index)
{
    return {value.bits >> index & 1, value.undefined >> index & 1};
}

static Word ArithmeticRight(Word bits, unsigned distance)
{
    return static_cast<Word>(static_cast<std::int32_t>(bits) >> distance);
}

// These take distances from 1 on. Carry: the last bit that went out.
static Value ShiftLeft(Value value, unsigned distance, Value& carry)
{
    carry = distance <= 32 ? Bit(value, 32 - distance) : Value{};
    return distance < 32 ? Value{value.bits << distance, value.undefined << distance} : Value{};
}

static Value ShiftRight(Value value, unsigned distance, Value& carry)
{
    carry = distance <= 32 ? Bit(value, distance - 1) : Value{};
    return distance < 32 ? Value{value.bits >> distance, value.undefined >> distance} : Value{};
}

static Value ShiftRightWithSign(Value value, unsigned distance, Value& carry)
{
    if (distance >= 32) {
        carry = Bit(value, 31);
        return {ArithmeticRight(value.bits, 31), ArithmeticRight(value.undefined, 31)};
    }
    carry = Bit(value, distance - 1);
    return {ArithmeticRight(value.bits, distance), ArithmeticRight(value.undefined, distance)};
}

static Value RotateRight(Value value, unsigned distance, Value& carry)
{
    const Value rotated = Rotated(value, distance);
    carry = Bit(rotated, 31);
    return rotated;
}

// The carry becomes the highest bit.
static Value RotateThroughCarry(Value value, Value& carry)
{
    const Value in = carry;
    carry = Bit(value, 0);
    return {value.bits >> 1 | in.bits << 31, value.undefined >> 1 | in.undefined << 31};
}

static Value Shifted(Value value, unsigned kind, unsigned distance, Value& carry)
{
    switch (kind) {
    case 0:
        return ShiftLeft(value, distance, carry);
    case 1:
        return ShiftRight(value, distance, carry);
    case 2:
        return ShiftRightWithSign(value, distance, carry);
    default:
        return RotateRight(value, distance, carry);
    }
}

Value Processor::ShifterOperand(Word instruction, Value& carry)
{
    if ((instruction & 0x02000000) == 0) {
        return Shift(instruction, carry);
    }
    const unsigned distance = instruction >> 7 & 30;
    const Value constant = Rotated({instruction & 0xFF, 0}, distance);
    if (distance != 0) {
        carry = Bit(constant, 31);
    }
    return constant;
}

Value Processor::Shift(Word instruction, Value& carry)
{
    const unsigned kind = instruction >> 5 & 3;
    const unsigned rm = instruction & 15;
    if ((instruction & 0x10) != 0) {
        const unsigned rs = instruction >> 8 & 15;
        // The program counter would read differently here.
        if (rm == ProgramCounter || rs == ProgramCounter || (instruction >> 16 & 15) == ProgramCounter ||
            (instruction >> 12 & 15) == ProgramCounter) {
            Refuse(FindingKind::Unpredictable, "shift by a register with the program counter");
        }
        const Value distance = state.r[rs];
        if ((distance.undefined & 0xFF) != 0) {
            carry = {0, 1};
            return {state.r[rm].bits, allBits};
        }
        const unsigned places = distance.bits & 0xFF;
        return places == 0 ? state.r[rm] : Shifted(state.r[rm], kind, places, carry);
    }
    const Value value = Operand(rm);
    const unsigned places = instruction >> 7 & 31;
    if (places != 0) {
        return Shifted(value, kind, places, carry);
    }
    // A distance of 0 stands for none, 32, 32 and the rotation through the carry.
    if (kind == 0) {
        return value;
    }
    return kind == 3 ? RotateThroughCarry(value, carry) : Shifted(value, kind, 32, carry);
}

} // namespace runner
