// Formatted texts: the guest's list of arguments has words, the host's a slot of 8 bytes for each.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/Host.h"

#include <algorithm>

#include <cstdarg>
#include <cwchar>
#include <vector>

namespace runner {

namespace {

class ArgumentList
{
    Call& call;
    Address next;
    std::vector<std::uint64_t> slots;

  public:
    ArgumentList(Call& itsCall, Address first) : call(itsCall), next(first) {}

    void AddNumber()
    {
        slots.push_back(
            static_cast<std::uint64_t>(static_cast<std::int64_t>(static_cast<std::int32_t>(Take()))));
    }
    void AddText() { slots.push_back(reinterpret_cast<ULONG_PTR>(call.TextAt(Take()))); }
    const std::uint64_t* Slots()
    {
        slots.push_back(0);
        return slots.data();
    }

  private:
    Word Take()
    {
        const Word value = call.guest.machine.memory.Read<Word>(next);
        next += wordSize;
        return value;
    }
};

} // namespace

// One directive, from behind its percent sign; gives the place behind it.
static const wchar_t* AddDirective(Call& call, const wchar_t* place, ArgumentList& list)
{
    for (; *place && std::wcschr(L"-+ #0123456789.*", *place); place++) {
        if (*place == L'*') {
            list.AddNumber();
        }
    }
    if (*place == L'l' || *place == L'h') {
        place++;
    }
    switch (*place) {
    case L'%':
        break;
    case L's':
        list.AddText();
        break;
    case L'c':
    case L'd':
    case L'i':
    case L'u':
    case L'x':
    case L'X':
        list.AddNumber();
        break;
    default:
        // Numbers of 64 bits among them: the two sides align them differently.
        call.guest.Misuse("a format that is not carried across: %" +
                          std::string(1, static_cast<char>(*place)));
    }
    return place + 1;
}

static Word DoFormat(Call& call)
{
    const Word room = call.Argument(1);
    auto* out = static_cast<wchar_t*>(
        call.Room(call.Argument(0), room * static_cast<Word>(sizeof(wchar_t)), sizeof(wchar_t)));
    const wchar_t* format = TextArgument(call, 2);
    ArgumentList list(call, call.Argument(3));
    for (const wchar_t* place = format; *place;) {
        place = *place == L'%' ? AddDirective(call, place + 1, list) : place + 1;
    }
    const int length =
        _vsnwprintf(out, room, format, reinterpret_cast<va_list>(const_cast<std::uint64_t*>(list.Slots())));
    // With its zero where that fits.
    const Word written = length < 0 ? room : std::min(static_cast<Word>(length) + 1, room);
    if (out) {
        call.MarkWritten(call.Argument(0), written * static_cast<Word>(sizeof(wchar_t)));
    }
    return static_cast<Word>(length);
}

static constexpr Bridge formattingRows[] = {
    {"_vsnwprintf", DoFormat},
};

Bridges FormattingBridges()
{
    return formattingRows;
}

} // namespace runner
