// Serves the guest's calls, and calls it.
#include "tools/runner/calls/Guest.h"

#include "tools/runner/calls/Call.h"
#include "tools/runner/calls/PlainCall.h"

#include <cstdio>

namespace runner {

static constexpr Word scratchBits = 0xDEAD000C;
static constexpr unsigned firstKept = 4;

static std::string Hex(Word value)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%08x", static_cast<unsigned>(value));
    return text;
}

Guest::Guest(FindingSink& findings, const Layout& layout)
    : machine(findings, layout), counts(machine.processor)
{
    // Trap 0 is where calls into the guest return to.
    traps.push_back({"return", nullptr, nullptr, Form("v"), 0});
}

Address Guest::AddTrap(const std::string& name, const Bridge& bridge, HostFunction host, std::uint64_t data)
{
    traps.push_back({name, bridge.handler, host, Form(bridge.form ? bridge.form : "v"), data});
    return TrapAddress(static_cast<Word>(traps.size() - 1));
}

Address Guest::LowerStack(Word size)
{
    constexpr Word wide = 8;
    Address pointer = (machine.processor.Register(StackRegister) - size) & ~(wide - 1);
    if (isStackOdd) {
        pointer -= wordSize;
    }
    machine.processor.SetRegister(StackRegister, pointer);
    return pointer;
}

void Guest::PassArguments(Word a, Word b, Word c, Word d)
{
    Processor& processor = machine.processor;
    const Word arguments[] = {a, b, c, d};
    for (unsigned i = 0; i < 4; i++) {
        processor.SetRegister(i, arguments[i]);
    }
    processor.SpoilRegister(ScratchRegister, scratchBits);
    processor.SpoilFlags();
    processor.SetRegister(LinkRegister, TrapAddress(0));
}

Word Guest::Enter(Address entry, Word a, Word b, Word c, Word d)
{
    // The system promises the entry no more than its callbacks.
    isStackOdd = true;
    LowerStack(0);
    PassArguments(a, b, c, d);
    return RunFrom(entry);
}

Word Guest::CallBack(Address function, Word a, Word b, Word c, Word d)
{
    Processor& processor = machine.processor;
    const Registers saved = processor.State();
    const bool wasOdd = isStackOdd;
    LowerStack(0);
    PassArguments(a, b, c, d);
    const Registers before = processor.State();
    const Word result = RunFrom(function);
    CheckKept(before, function);
    processor.Restore(saved);
    isStackOdd = !wasOdd; // the next one finds the other alignment
    return result;
}

void Guest::CheckKept(const Registers& before, Address function)
{
    for (unsigned index = firstKept; index <= StackRegister; index++) {
        if (index != ScratchRegister && machine.processor.Register(index) != before.Bits(index)) {
            Misuse("r" + std::to_string(index) + " comes back changed from " + PlaceText(function, &symbols));
        }
    }
}

Word Guest::RunFrom(Address place)
{
    for (;;) {
        const Word trap = machine.processor.Run(place);
        if (trap == 0) {
            return machine.processor.Argument(0); // which somebody waits for
        }
        place = Serve(trap);
    }
}

Address Guest::Serve(Word number)
{
    if (number >= traps.size()) {
        Misuse("a jump to an address that is no import's", TrapAddress(number));
    }
    const Trap& trap = traps[number];
    counts.AddImport(trap.name);
    running.push_back(number);
    if (trace) {
        trace->Write(std::string(running.size(), ' ') + trap.name + "(" + Hex(machine.processor.Register(0)) +
                     ", " + Hex(machine.processor.Register(1)) + ", " + Hex(machine.processor.Register(2)) +
                     ", " + Hex(machine.processor.Register(3)) + ") from " +
                     symbols.NameOf(machine.processor.Place()));
    }
    Call call(*this, trap.data);
    const Word result = trap.handler ? trap.handler(call) : CallPlain(call, trap.form, trap.host);
    running.pop_back();
    const Address next = machine.processor.Answer(result);
    if (call.HasNoResult()) {
        machine.processor.SpoilRegister(0, result);
    }
    return next;
}

std::string Guest::CurrentImport() const
{
    return running.empty() ? "the system" : traps[running.back()].name;
}

void Guest::Misuse(const std::string& text, Address address)
{
    machine.Misuse(CurrentImport() + ": " + text, address);
}

} // namespace runner
