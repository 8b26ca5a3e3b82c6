// The line that a finding is reported with.
#include "tools/runner/machine/Finding.h"

#include "tools/runner/machine/Symbols.h"

#include <cstdio>
#include <cstdlib>

namespace runner {

static std::string Hex(Word number)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%08x", number);
    return text;
}

std::string PlaceText(Address address, const Symbols* symbols)
{
    const std::string name = symbols ? symbols->NameOf(address) : "";
    return name.empty() ? Hex(address) : name + " (" + Hex(address) + ")";
}

static const char* AccessText(Access access)
{
    switch (access) {
    case Access::Read:
    case Access::Look:
        return "read";
    case Access::Write:
    case Access::Reserve:
        return "write";
    case Access::Execute:
        return "execution";
    default:
        return "use";
    }
}

static const char* KindText(FindingKind kind)
{
    switch (kind) {
    case FindingKind::Unaligned:
        return "unaligned";
    case FindingKind::Unmapped:
        return "no memory there";
    case FindingKind::Protected:
        return "the page does not allow it";
    case FindingKind::StackOverflow:
        return "the stack is at its end";
    case FindingKind::OutOfBlock:
        return "outside every block of the heap";
    case FindingKind::Freed:
        return "the block is freed";
    case FindingKind::BelowStack:
        return "below the stack pointer";
    case FindingKind::Undefined:
        return "the value was never written";
    case FindingKind::Thumb:
        return "Thumb code";
    case FindingKind::UnknownInstruction:
        return "unknown instruction";
    case FindingKind::Unpredictable:
        return "instruction without a defined result";
    default:
        return "misuse";
    }
}

static std::string BlockText(const Block& block, Address address, const Symbols* symbols)
{
    std::string text = "; ";
    if (address < block.address) {
        text += std::to_string(block.address - address) + " bytes before";
    } else if (address - block.address < block.size) {
        text += std::to_string(address - block.address) + " bytes into";
    } else {
        text += std::to_string(address - block.address - block.size) + " bytes behind";
    }
    text += " the block of " + std::to_string(block.size) + " bytes at " + Hex(block.address) +
            ", allocated at " + PlaceText(block.allocatedAt, symbols);
    if (block.freedAt != 0) {
        text += ", freed at " + PlaceText(block.freedAt, symbols);
    }
    return text;
}

void FindingSink::Report(const Finding& finding)
{
    Take(finding);
    std::abort();
}

std::string Finding::Line(const Symbols* symbols) const
{
    std::string line = PlaceText(place, symbols) + ": ";
    if (access != Access::None) {
        line += AccessText(access);
        if (size != 0) {
            line += " of " + std::to_string(size) + " bytes";
        }
        line += " at " + Hex(address) + ": ";
    }
    line += KindText(kind);
    if (!text.empty()) {
        line += ": " + text;
    }
    if (block) {
        line += BlockText(*block, address, symbols);
    }
    for (const Address caller : callers) {
        line += "; called from " + PlaceText(caller, symbols);
    }
    return line;
}

} // namespace runner
