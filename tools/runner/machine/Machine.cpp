// Loading, and where a finding happened.
#include "tools/runner/machine/Machine.h"

namespace runner {

void Machine::Load(const ArmImage& image, Word firstTrap)
{
    image.LoadInto(memory);
    Word number = firstTrap;
    for (const ArmImage::Import& import : image.Imports()) {
        memory.Write(import.slot, TrapAddress(number++));
    }
    memory.SetStack(stackTop, image.StackReserve());
    processor.SetRegister(StackRegister, stackTop);
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
    outer.Report(placed);
}

} // namespace runner
