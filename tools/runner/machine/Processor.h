// Interprets ARMv4T code in ARM state.
#pragma once

#include "tools/runner/machine/CallTrail.h"
#include "tools/runner/machine/GuestMemory.h"
#include "tools/runner/machine/Registers.h"

namespace runner {

// Calls out of the guest: one word for each, at addresses where no memory can be.
inline constexpr Address trapBase = 0xF0000000;

constexpr Address TrapAddress(Word number)
{
    return trapBase + 4 * number;
}

class Processor
{
    GuestMemory& memory;
    FindingSink& sink;
    Registers state;
    Address place = 0; // of the instruction being executed
    Address next = 0;
    std::uint64_t count = 0;
    CallTrail trail;
    // How often each instruction of a range was executed; empty when nobody asked.
    std::vector<std::uint64_t> profile;
    Address profileBegin = 0;
    Word profileLength = 0;

  public:
    Processor(GuestMemory& guestMemory, FindingSink& findings) : memory(guestMemory), sink(findings) {}
    Processor(const Processor&) = delete;
    Processor& operator=(const Processor&) = delete;

    // Runs from there until it comes to a trap, and tells its number. What serves the trap may run the
    // processor again.
    Word Run(Address start);

    // After a trap was served: the result is in r0, all that a called function may change is spoilt, and
    // Run goes on at the address this gives.
    Address Answer(Word result);
    Address Answer64(std::uint64_t result);

    Word Register(unsigned index) const { return state.Bits(index); }
    bool IsDefined(unsigned index) const { return state.r[index].IsDefined(); }
    // Of a call that is being served: the first four are in registers, the others on the stack. It has to be
    // defined.
    Word Argument(unsigned index);
    // Moves the stack too where index is the stack pointer.
    void SetRegister(unsigned index, Word bits);
    // From now on the register is one that nobody has written.
    void SpoilRegister(unsigned index, Word bits);
    void SpoilFlags();

    // What a call into the guest has to put back.
    const Registers& State() const { return state; }
    void Restore(const Registers& saved);

    // The instruction being executed; while a trap is served, the call of it.
    Address Place() const { return place; }
    // The calls that led there, the last one first.
    std::vector<Address> Callers() const { return trail.Places(); }
    std::uint64_t Count() const { return count; }
    void Profile(Address begin, Word length);
    const std::vector<std::uint64_t>& ProfileCounts() const { return profile; }
    Address ProfileBegin() const { return profileBegin; }

  private:
    [[noreturn]] void Refuse(FindingKind kind, const char* text = "");
    [[noreturn]] void RefuseFetch(Address address);
    void NeedDefined(Value value, const char* use)
    {
        if (value.undefined != 0) [[unlikely]] {
            Refuse(FindingKind::Undefined, use);
        }
    }
    bool ConditionHolds(Word condition);
    void Execute(Word instruction);
    void ExecuteExtension(Word instruction);

    // The program counter reads as two instructions further on.
    Value Operand(unsigned index) const
    {
        return index == ProgramCounter ? Value{place + 8, 0} : state.r[index];
    }
    void SetResult(unsigned index, Value value);
    void Jump(Value target);
    void Branch(Word instruction);
    void Exchange(unsigned index);

    // Carry: what the shift leaves of the flag, which goes in.
    Value ShifterOperand(Word instruction, Value& carry);
    Value Shift(Word instruction, Value& carry);
    Value CarryIn() const;
    Value Add(Value a, Value b, Value carryIn, bool setFlags);
    Value Calculate(unsigned operation, Value a, Value b, bool setFlags);
    void SetLogicalFlags(Value result, Value carry);
    void Process(Word instruction);
    void MoveStatus(Word instruction);
    void SetProductFlags(std::uint64_t product, unsigned topBit, bool isUndefined);
    Value Factor(unsigned index);
    void Multiply(Word instruction);
    void MultiplyLong(Word instruction);

    struct Reach
    {
        Address address; // what is transferred
        Address moved;   // the base behind it
        bool moves;
    };
    Reach ReachOf(Word instruction, Value offset);
    template <class T>
    Value LoadThenMove(Word instruction, Value offset);
    template <class T>
    void MoveAndStore(Word instruction, Value offset);
    void Swap(Word instruction);
    void Transfer(Word instruction);
    void TransferHalf(Word instruction);
    void TransferMany(Word instruction);
    void LoadMany(Address address, Word list);
    // Rn: the base register, which may have moved already.
    void StoreMany(Address address, Word list, unsigned rn, Value base);
};

} // namespace runner
