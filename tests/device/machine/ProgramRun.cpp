// Loading, and the few imports.
#include "tests/device/machine/ProgramRun.h"

#include "tools/common/InputFile.h"
#include "tools/common/Refusal.h"

namespace runner {

static constexpr Word lateTrap = 1; // of all functions that are looked up
static constexpr Word firstTrap = 2;

ProgramRun::ProgramRun(const std::string& path)
    : symbols(ReadInputFile(path + ".elf")), machine(*this), image(ReadInputFile(path + ".exe"))
{
    machine.Load(image, firstTrap);
}

Word ProgramRun::Serve(const ArmImage::Import& import)
{
    Processor& processor = machine.processor;
    if (import.name == "malloc") {
        return machine.heap.Allocate(processor.Argument(0), machine.Allocator(symbols));
    }
    if (import.name == "free") {
        if (processor.Argument(0) != 0) {
            machine.heap.Free(processor.Argument(0), machine.Allocator(symbols));
        }
        return 0;
    }
    if (import.name == "Sleep") {
        calls.push_back(processor.Argument(0));
        return 0;
    }
    if (import.name == "memset") {
        const Address place = processor.Argument(0);
        std::memset(machine.memory.Checked(place, 1, processor.Argument(2), Access::Write),
                    static_cast<int>(processor.Argument(1)), processor.Argument(2));
        return place;
    }
    // Every function that is looked up is there, and refuses to do anything.
    if (import.name == "LoadLibraryW") {
        return 1;
    }
    if (import.name == "GetProcAddressW") {
        return TrapAddress(lateTrap);
    }
    if (import.name == "SystemParametersInfoW") {
        return 0;
    }
    throw Refusal("the program calls " + import.Label() + " of " + import.library);
}

std::optional<Finding> ProgramRun::Run(const std::u16string& commandLine)
{
    try {
        RunToTheEnd(commandLine);
    } catch (const Finding& finding) {
        return finding;
    }
    return {};
}

void ProgramRun::RunToTheEnd(const std::u16string& commandLine)
{
    Processor& processor = machine.processor;
    const Address text = machine.layout.freeBegin;
    machine.memory.Map(text, GuestMemory::pageSize, CanRead);
    std::memcpy(machine.memory.Host(text), commandLine.c_str(), 2 * (commandLine.size() + 1));
    const Word arguments[] = {image.Base(), 0, text, 1};
    for (unsigned index = 0; index < std::size(arguments); index++) {
        processor.SetRegister(index, arguments[index]);
    }
    processor.SetRegister(LinkRegister, TrapAddress(0));
    for (Address next = image.Entry();;) {
        const Word trap = processor.Run(next);
        if (trap == lateTrap) {
            next = processor.Answer(0);
            continue;
        }
        const ArmImage::Import& import = image.Imports().at(trap - firstTrap);
        if (import.name == "TerminateProcess") {
            return;
        }
        next = processor.Answer(Serve(import));
    }
}

} // namespace runner
