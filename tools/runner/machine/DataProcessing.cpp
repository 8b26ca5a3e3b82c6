// Arithmetic and logic, and the flags.
#include "tools/runner/machine/Processor.h"

namespace runner {

// The flags' carry as it goes into a sum.
Value Processor::CarryIn() const
{
    return {state.flags.c, (state.flags.undefined & CarryFlag) != 0 ? 1u : 0u};
}

// Whether an undefined value decides if the result is zero: a defined bit that is set does it alone.
static bool IsZeroUndefined(Value result)
{
    return result.undefined != 0 && (result.bits & ~result.undefined) == 0;
}

// A sum of 33 bits, whose highest is the carry.
Value Processor::Add(Value a, Value b, Value carryIn, bool setFlags)
{
    const std::uint64_t wide = std::uint64_t{a.bits} + b.bits + carryIn.bits;
    const Word undefined = a.undefined | b.undefined | carryIn.undefined;
    const Value sum{static_cast<Word>(wide), Spread(undefined)};
    if (setFlags) {
        Flags& flags = state.flags;
        flags.n = sum.bits >> 31 != 0;
        flags.z = sum.bits == 0;
        flags.c = wide >> 32 != 0;
        flags.v = (~(a.bits ^ b.bits) & (a.bits ^ sum.bits)) >> 31 != 0;
        flags.undefined = 0;
        if (undefined != 0) [[unlikely]] {
            flags.undefined = AllFlags;
            flags.SetUndefined(ZeroFlag, IsZeroUndefined(sum));
        }
    }
    return sum;
}

void Processor::SetLogicalFlags(Value result, Value carry)
{
    Flags& flags = state.flags;
    flags.n = result.bits >> 31 != 0;
    flags.z = result.bits == 0;
    flags.c = carry.bits != 0;
    flags.SetUndefined(NegativeFlag, result.undefined >> 31 != 0);
    flags.SetUndefined(ZeroFlag, IsZeroUndefined(result));
    flags.SetUndefined(CarryFlag, carry.undefined != 0);
}

static Value Not(Value value)
{
    return {~value.bits, value.undefined};
}

// A bit is known where both are, or where one of them is known to be zero.
static Value And(Value a, Value b)
{
    return {a.bits & b.bits, (a.undefined | b.undefined) & (a.bits | a.undefined) & (b.bits | b.undefined)};
}

static Value Or(Value a, Value b)
{
    return Not(And(Not(a), Not(b)));
}

static Value ExclusiveOr(Value a, Value b)
{
    return {a.bits ^ b.bits, a.undefined | b.undefined};
}

Value Processor::Calculate(unsigned operation, Value a, Value b, bool setFlags)
{
    constexpr Value zero{0, 0};
    constexpr Value one{1, 0};
    switch (operation) {
    case 2:  // SUB
    case 10: // CMP
        return Add(a, Not(b), one, setFlags);
    case 3: // RSB
        return Add(b, Not(a), one, setFlags);
    case 4:  // ADD
    case 11: // CMN
        return Add(a, b, zero, setFlags);
    case 5: // ADC
        return Add(a, b, CarryIn(), setFlags);
    case 6: // SBC
        return Add(a, Not(b), CarryIn(), setFlags);
    default: // RSC
        return Add(b, Not(a), CarryIn(), setFlags);
    }
}

void Processor::Process(Word instruction)
{
    const unsigned operation = instruction >> 21 & 15;
    const unsigned rn = instruction >> 16 & 15;
    const unsigned rd = instruction >> 12 & 15;
    const bool setFlags = (instruction & 0x00100000) != 0;
    const bool onlyFlags = operation >= 8 && operation <= 11;
    if (rd == ProgramCounter && setFlags) {
        Refuse(FindingKind::Unpredictable, "status of a mode that programs have not");
    }
    Value carry = CarryIn();
    const Value b = ShifterOperand(instruction, carry);
    const Value a = Operand(rn);
    Value result;
    switch (operation) {
    case 0: // AND
    case 8: // TST
        result = And(a, b);
        break;
    case 1: // EOR
    case 9: // TEQ
        result = ExclusiveOr(a, b);
        break;
    case 12: // ORR
        result = Or(a, b);
        break;
    case 13: // MOV
        result = b;
        break;
    case 14: // BIC
        result = And(a, Not(b));
        break;
    case 15: // MVN
        result = Not(b);
        break;
    default:
        result = Calculate(operation, a, b, setFlags);
        if (!onlyFlags) {
            SetResult(rd, result);
        }
        return;
    }
    if (setFlags) {
        SetLogicalFlags(result, carry);
    }
    if (!onlyFlags) {
        SetResult(rd, result);
    }
}

} // namespace runner
