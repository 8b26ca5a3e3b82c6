// Calls a plain function of the host's for the guest, by its form.
#include "tools/runner/calls/PlainCall.h"

#include "tools/runner/calls/Call.h"

namespace runner {

static constexpr Word colourMark = 0x40000000;
static constexpr Word colourCount = 0x100;
static constexpr char16_t untouched = 0xFFFF; // no text begins with it

std::uint64_t ColourIndexOf(Call& call, Word index)
{
    if ((index & ~(colourCount - 1)) != colourMark) {
        call.guest.Misuse("a system colour's index without the device's mark", index);
    }
    return index & (colourCount - 1);
}

std::uint64_t BrushOf(Call& call, Word brush)
{
    if (brush != 0 && brush <= colourCount) {
        call.guest.Misuse("a system colour's index without the device's mark in the place of a brush", brush);
    }
    if (brush - 1 >= colourMark && brush - 1 < colourMark + colourCount) {
        return ColourIndexOf(call, brush - 1) + 1;
    }
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(static_cast<std::int32_t>(brush)));
}

static std::uint64_t HostPointer(const void* pointer)
{
    return reinterpret_cast<std::uintptr_t>(pointer);
}

// What a parameter is on the host.
static std::uint64_t ParameterOf(Call& call, const Form& form, unsigned index)
{
    const Form::Part& part = form.Parameter(index);
    const Word value = call.Argument(index);
    switch (part.letter) {
    case 'i':
    case 'h':
        return call.Extended(index);
    case 'g':
        call.TakenBack(value);
        return call.Extended(index);
    case 'o':
        return call.ObjectOf(value, static_cast<CookieKind>(part.kind));
    case 'm':
        return call.ModuleOf(value);
    case 'c':
        return ColourIndexOf(call, value);
    case 'r':
        return BrushOf(call, value);
    case 't':
        return HostPointer(call.Text(index));
    case 's':
        return HostPointer(call.TextOrNumber(index));
    case 'T': {
        auto* text = static_cast<char16_t*>(call.Room(
            value, static_cast<Word>(sizeof(char16_t)) * call.Argument(index + 1), sizeof(char16_t)));
        if (text && call.Argument(index + 1) != 0) {
            *text = untouched;
        }
        return HostPointer(text);
    }
    case 'b':
        return HostPointer(call.In(value, call.Argument(index + 1), 1));
    case 'p':
    case 'x':
        return HostPointer(call.In(value, part.size));
    case 'q':
        return HostPointer(call.Room(value, part.size));
    default:
        return value;
    }
}

// Afterwards: what the function wrote is defined.
static void MarkResults(Call& call, const Form& form, bool succeeded)
{
    for (unsigned i = 0; i < form.Parameters(); i++) {
        const Form::Part& part = form.Parameter(i);
        const Word value = std::strchr("Tqx", part.letter) ? call.Argument(i) : 0;
        if (value == 0) {
            continue;
        }
        if (part.letter == 'T') {
            const Word room = call.Argument(i + 1);
            const void* text = call.guest.machine.memory.Host(value);
            if (room != 0 && std::memcmp(text, &untouched, sizeof untouched) != 0) {
                call.MarkText(value, room);
            }
        } else if (succeeded) {
            call.Out(value, part.size);
        }
    }
}

Word CallPlain(Call& call, const Form& form, Guest::HostFunction function)
{
    if (!form.IsGood() || !function) {
        call.guest.Misuse("the runner has no form or no function for it");
    }
    std::uint64_t p[Form::mostParameters] = {};
    for (unsigned i = 0; i < form.Parameters(); i++) {
        p[i] = ParameterOf(call, form, i);
    }
    const std::uint64_t result =
        function(p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7], p[8], p[9], p[10], p[11], p[12], p[13]);
    const auto word = static_cast<Word>(result);
    const char letter = form.Result().letter;
    MarkResults(call, form, letter == 'e' ? word == 0 : letter == 'd' || letter == 'v' || word != 0);
    switch (letter) {
    case 'v':
        return call.NoResult();
    case 'g':
        return call.Given(word);
    case 'o':
        return call.Cookie(static_cast<CookieKind>(form.Result().kind), result);
    case 't':
        return call.guest.machine.memory.GuestAddress(
            reinterpret_cast<const void*>(static_cast<std::uintptr_t>(result)));
    default:
        return word;
    }
}

} // namespace runner
