// Loads and stores of many registers: the lowest register is at the lowest address, whichever way the base
// moves.
#include "tools/runner/machine/Processor.h"

#include <bit>

namespace runner {

void Processor::LoadMany(Address address, Word list)
{
    // All of them before the first is changed: the stack pointer may be one.
    Value loaded[16];
    for (Word left = list; left != 0; left &= left - 1) {
        loaded[std::countr_zero(left)] = memory.Load<Word>(address);
        address += wordSize;
    }
    for (Word left = list; left != 0; left &= left - 1) {
        const auto index = static_cast<unsigned>(std::countr_zero(left));
        SetResult(index, loaded[index]);
    }
}

void Processor::StoreMany(Address address, Word list, unsigned rn, Value base)
{
    for (Word left = list; left != 0; left &= left - 1) {
        const auto index = static_cast<unsigned>(std::countr_zero(left));
        Value value = index == rn ? base : state.r[index];
        if (index == ProgramCounter) {
            value = {place + 12, 0};
        }
        memory.Store<Word>(address, value);
        address += wordSize;
    }
}

void Processor::TransferMany(Word instruction)
{
    const unsigned rn = instruction >> 16 & 15;
    const Word list = instruction & 0xFFFF;
    const bool load = (instruction & 0x00100000) != 0;
    const bool writeBack = (instruction & 0x00200000) != 0;
    const bool up = (instruction & 0x00800000) != 0;
    const bool before = (instruction & 0x01000000) != 0;
    if ((instruction & 0x00400000) != 0) {
        Refuse(FindingKind::UnknownInstruction, "registers of another mode");
    }
    // Of a base that moves, the old value is stored if it is the lowest register.
    const bool isBaseListed = (list >> rn & 1) != 0 && (load || (list & ((1u << rn) - 1)) != 0);
    if (list == 0 || rn == ProgramCounter || (writeBack && isBaseListed)) {
        Refuse(FindingKind::Unpredictable, "no registers, or the base among them");
    }
    const Value base = state.r[rn];
    NeedDefined(base, "it is used as an address");
    const Word length = wordSize * static_cast<Word>(std::popcount(list));
    const Address moved = up ? base.bits + length : base.bits - length;
    const Address lowest = up ? base.bits : moved;
    const Address address = lowest + (before == up ? wordSize : 0);
    // Below the stack pointer is nothing: a push moves it first, a pop last.
    if (writeBack && !up) {
        SetResult(rn, {moved, 0});
    }
    if (load) {
        LoadMany(address, list);
    } else {
        StoreMany(address, list, rn, base);
    }
    if (writeBack && up) {
        SetResult(rn, {moved, 0});
    }
}

} // namespace runner
