// Products of 32 and 64 bits, and the status register.
#include "tools/runner/machine/Processor.h"

namespace runner {

Value Processor::Factor(unsigned index)
{
    if (index == ProgramCounter) {
        Refuse(FindingKind::Unpredictable, "product of the program counter");
    }
    return state.r[index];
}

// ARMv4 leaves the carry without a meaning.
void Processor::SetProductFlags(std::uint64_t product, unsigned topBit, bool isUndefined)
{
    state.flags.n = (product >> topBit & 1) != 0;
    state.flags.z = product == 0;
    state.flags.SetUndefined(NegativeFlag | ZeroFlag, isUndefined);
    state.flags.SetUndefined(CarryFlag, true);
}

void Processor::Multiply(Word instruction)
{
    const unsigned rd = instruction >> 16 & 15;
    const unsigned rn = instruction >> 12 & 15;
    const bool accumulate = (instruction & 0x00200000) != 0;
    if (rd == ProgramCounter || rd == (instruction & 15)) {
        Refuse(FindingKind::Unpredictable, "product into one of its factors");
    }
    const Value a = Factor(instruction & 15);
    const Value b = Factor(instruction >> 8 & 15);
    const Value added = accumulate ? Factor(rn) : Value{};
    const Value product{a.bits * b.bits + added.bits, Spread(a.undefined | b.undefined | added.undefined)};
    if ((instruction & 0x00100000) != 0) {
        SetProductFlags(product.bits, 31, product.undefined != 0);
    }
    SetResult(rd, product);
}

void Processor::MultiplyLong(Word instruction)
{
    const unsigned high = instruction >> 16 & 15;
    const unsigned low = instruction >> 12 & 15;
    const unsigned rm = instruction & 15;
    const bool isSigned = (instruction & 0x00400000) != 0;
    const bool accumulate = (instruction & 0x00200000) != 0;
    if (high == ProgramCounter || low == ProgramCounter || high == low || high == rm || low == rm) {
        Refuse(FindingKind::Unpredictable, "product into one of its factors");
    }
    const Value a = Factor(rm);
    const Value b = Factor(instruction >> 8 & 15);
    const std::uint64_t wideA =
        isSigned ? static_cast<std::uint64_t>(std::int64_t{static_cast<std::int32_t>(a.bits)})
                 : std::uint64_t{a.bits};
    const std::uint64_t wideB =
        isSigned ? static_cast<std::uint64_t>(std::int64_t{static_cast<std::int32_t>(b.bits)})
                 : std::uint64_t{b.bits};
    std::uint64_t product = wideA * wideB;
    Word undefined = a.undefined | b.undefined;
    Word undefinedHigh = undefined;
    if (accumulate) {
        product += std::uint64_t{state.Bits(high)} << 32 | state.Bits(low);
        undefined |= state.r[low].undefined;
        undefinedHigh = undefined | state.r[high].undefined;
    }
    if ((instruction & 0x00100000) != 0) {
        SetProductFlags(product, 63, undefinedHigh != 0);
    }
    SetResult(low, {static_cast<Word>(product), Spread(undefined)});
    // What is undefined below reaches all of the upper half.
    SetResult(high, {static_cast<Word>(product >> 32), undefined != 0 ? allBits : Spread(undefinedHigh)});
}

void Processor::MoveStatus(Word instruction)
{
    Flags& flags = state.flags;
    if ((instruction & 0x0FFF0FFF) == 0x010F0000) { // MRS
        const Word bits = static_cast<Word>(flags.n) << 31 | static_cast<Word>(flags.z) << 30 |
                          static_cast<Word>(flags.c) << 29 | static_cast<Word>(flags.v) << 28;
        constexpr Word userMode = 0x10;
        SetResult(instruction >> 12 & 15, {bits | userMode, flags.undefined << 28});
        return;
    }
    const bool isConstant = (instruction & 0x0FFFF000) == 0x0328F000;
    if (!isConstant && (instruction & 0x0FFFFFF0) != 0x0128F000) { // MSR, of the flags alone
        Refuse(FindingKind::UnknownInstruction);
    }
    Value unused;
    const Value status = isConstant ? ShifterOperand(instruction, unused) : Factor(instruction & 15);
    flags.n = (status.bits >> 31 & 1) != 0;
    flags.z = (status.bits >> 30 & 1) != 0;
    flags.c = (status.bits >> 29 & 1) != 0;
    flags.v = (status.bits >> 28 & 1) != 0;
    flags.undefined = status.undefined >> 28;
}

} // namespace runner
