// What was found wrong with the guest's code. The first finding ends the run.
#pragma once

#include "tools/runner/machine/Value.h"

#include <optional>
#include <string>
#include <vector>

namespace runner {

class Symbols;

enum class FindingKind
{
    Unaligned,
    Unmapped,
    Protected,
    StackOverflow,
    OutOfBlock,
    Freed,
    BelowStack,
    Undefined,          // a value that nobody has written decides something
    Thumb,              // code of the other instruction set
    UnknownInstruction, // not in ARMv4T
    Unpredictable,      // an instruction in a form whose result the architecture leaves open
    Misuse,             // what a bridge or the heap does not accept; the text says what
};

enum class Access
{
    None,
    Read,    // every byte has to be defined
    Look,    // reads, but not every byte matters: a structure of which some members are not in use
    Write,   // every byte is defined from then on
    Reserve, // writes some of the bytes; who does so marks them as defined
    Execute,
};

struct Block
{
    Address address = 0;
    Word size = 0;
    Address allocatedAt = 0;
    Address freedAt = 0; // 0 while it is live
};

struct Finding
{
    FindingKind kind = FindingKind::Misuse;
    Access access = Access::None;
    Address address = 0;
    Word size = 0;
    std::optional<Block> block; // the one that was meant, as far as can be told
    std::string text;           // what else is to be said
    // Of the instruction, and the calls that led there, the last one first. The machine fills them in.
    Address place = 0;
    std::vector<Address> callers;

    // One line. Symbols: null without names.
    std::string Line(const Symbols* symbols) const;
};

// The function and the address; symbols as above.
std::string PlaceText(Address place, const Symbols* symbols);

// The process's exit code after a finding.
inline constexpr int findingExitCode = 99;

class FindingSink
{
  public:
    virtual ~FindingSink() = default;
    [[noreturn]] void Report(const Finding& finding);

  private:
    // Ends the process, or throws where nothing but the machine is on the stack. It does not return.
    virtual void Take(const Finding& finding) = 0;
};

} // namespace runner
