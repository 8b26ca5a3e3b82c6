// Loading, and where a finding happened.
#include "tools/runner/machine/Machine.h"

#include "tools/runner/machine/Symbols.h"

namespace runner {

void Machine::Load(const ArmImage& image, Word firstTrap)
{
    image.LoadInto(memory);
    Word number = firstTrap;
    for (const ArmImage::Import& import : image.Imports()) {
        memory.Write(import.slot, TrapAddress(number++));
    }
    memory.SetStack(layout.stackTop, image.StackReserve());
    processor.SetRegister(StackRegister, layout.stackTop);
}

Address Machine::Allocator(const Symbols& symbols) const
{
    Address allocator = processor.Place();
    for (const Address caller : processor.Callers()) {
        if (!symbols.IsInOperatorNew(allocator)) {
            break;
        }
        allocator = caller;
    }
    return allocator;
}

void Machine::Misuse(const std::string& text, Address address)
{
    Finding finding;
    finding.kind = FindingKind::Misuse;
    finding.address = address;
    finding.text = text;
    Report(finding);
}

void Machine::Take(const Finding& finding)
{
    Finding placed = finding;
    placed.place = processor.Place();
    placed.callers = processor.Callers();
    // A call that could not even begin.
    if (!placed.callers.empty() && placed.callers.front() == placed.place) {
        placed.callers.erase(placed.callers.begin());
    }
    outer.Report(placed);
}

} // namespace runner
