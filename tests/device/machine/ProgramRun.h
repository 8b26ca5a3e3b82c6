// One run of a program for the device, which needs little of its system: memory, and somebody to call.
#pragma once

#include "tools/runner/machine/Machine.h"
#include "tools/runner/machine/Symbols.h"

namespace runner {

class ProgramRun : private FindingSink
{
    Symbols symbols;
    Machine machine;
    ArmImage image;
    std::vector<Word> calls;

  public:
    // Path: without ".exe" and ".elf".
    explicit ProgramRun(const std::string& path);

    // What was found, if anything.
    std::optional<Finding> Run(const std::u16string& commandLine);
    // What Sleep was called with, in order.
    const std::vector<Word>& Calls() const { return calls; }
    const GuestHeap& Heap() const { return machine.heap; }
    std::string Line(const Finding& finding) const { return finding.Line(&symbols); }
    std::string FunctionOf(Address place) const { return symbols.FunctionOf(place); }

  private:
    void RunToTheEnd(const std::u16string& commandLine);
    Word Serve(const ArmImage::Import& import);
    void Take(const Finding& finding) override { throw finding; }
};

} // namespace runner
