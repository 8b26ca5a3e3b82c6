// A guest with a page of code and a page of data, and findings that are thrown.
#pragma once

#include "tools/runner/calls/Call.h"

#include "tests/tools/machine/ThrownFinding.h"

namespace runner {

class SmallGuest
{
    ThrowingSink sink;

  public:
    static constexpr Address code = 0x00010000;
    static constexpr Address data = 0x00030000;
    static constexpr Address stackTop = 0x00060000;

    Guest guest;

    SmallGuest();

    GuestMemory& Memory() { return guest.machine.memory; }
    // Puts these instructions into the page of code, so many bytes behind its begin.
    Address Put(const std::vector<Word>& words, Word offset = 0);
    // A function that calls the trap with what it was called with, and returns what that returns.
    Address PutCallOf(Address trap, Word offset = 0);
    Address PutText(const std::u16string& text, Word offset = 0);
};

} // namespace runner
