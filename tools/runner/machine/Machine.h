// The guest as a whole: memory, heap and processor, with one way for their findings.
#pragma once

#include "tools/runner/machine/ArmImage.h"
#include "tools/runner/machine/GuestHeap.h"
#include "tools/runner/machine/Processor.h"

namespace runner {

// Where things are. The image says itself where it wants to be.
struct Layout
{
    Word memorySize = 0x10000000;
    Address stackTop = 0x02000000;
    Address heapBegin = 0x04000000;
    Word heapSize = 0x02000000;
    // From here on the runner may map what it likes: the command line, views of files.
    Address freeBegin = 0x08000000;
};

class Machine : private FindingSink
{
    FindingSink& outer;

  public:
    const Layout layout;

    GuestMemory memory;
    GuestHeap heap;
    Processor processor;

    explicit Machine(FindingSink& findings, const Layout& places = {})
        : outer(findings), layout(places), memory(*this, layout.memorySize),
          heap(memory, *this, layout.heapBegin, layout.heapSize), processor(memory, *this)
    {}

    // The image's sections, its stack, and the registers at its start: all but the arguments and the link
    // register. Slots of imports hold their index's trap: import number i is trap i + firstTrap.
    void Load(const ArmImage& image, Word firstTrap);
    // Who wants the memory that an import is asked for: not the operator that passes the request on.
    Address Allocator(const Symbols& symbols) const;
    // Of a bridge: these report with the place of the call.
    using FindingSink::Report;
    [[noreturn]] void Misuse(const std::string& text, Address address = 0);

  private:
    void Take(const Finding& finding) override;
};

} // namespace runner
