// Texts: the C library's functions for them.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/Host.h"

#include <cwchar>

namespace runner {

static Word DoWcslen(Call& call)
{
    return static_cast<Word>(std::wcslen(TextArgument(call, 0)));
}

static Word DoWcsstr(Call& call)
{
    const wchar_t* found = std::wcsstr(TextArgument(call, 0), TextArgument(call, 1));
    return call.guest.machine.memory.GuestAddress(found);
}

// As many as fit are copied, and the rest of the room is filled with zeros.
static Word DoWcsncpy(Call& call)
{
    const Address to = call.Argument(0);
    const Address from = call.Argument(1);
    const Word count = call.Argument(2);
    GuestMemory& memory = call.guest.machine.memory;
    auto* room = static_cast<char16_t*>(call.Out(to, count * sizeof(char16_t), sizeof(char16_t)));
    bool isOver = false;
    for (Word i = 0; i < count; i++) {
        room[i] = isOver ? u'\0' : memory.Read<char16_t>(from + i * static_cast<Word>(sizeof(char16_t)));
        isOver = isOver || room[i] == 0;
    }
    return to;
}

static Word DoWcslwr(Call& call)
{
    const Address text = call.Argument(0);
    call.TextAt(text);
    _wcslwr(reinterpret_cast<wchar_t*>(call.guest.machine.memory.Host(text)));
    return text;
}

static Word DoMultiByteToWideChar(Call& call)
{
    const Word size = call.Argument(3);
    const Address text = call.Argument(2);
    if (size == 0xFFFFFFFF) {
        call.guest.machine.memory.NarrowText(text);
    }
    const auto* bytes = reinterpret_cast<const char*>(call.guest.machine.memory.Host(text));
    if (size != 0xFFFFFFFF) {
        call.In(text, size, 1);
    }
    const Word room = call.Argument(5);
    auto* wide = static_cast<wchar_t*>(
        call.Room(call.Argument(4), room * static_cast<Word>(sizeof(wchar_t)), sizeof(wchar_t)));
    const int written = MultiByteToWideChar(call.Argument(0), call.Argument(1), bytes, static_cast<int>(size),
                                            wide, static_cast<int>(room));
    if (wide && written > 0) {
        call.MarkWritten(call.Argument(4), static_cast<Word>(written) * static_cast<Word>(sizeof(wchar_t)));
    }
    return static_cast<Word>(written);
}

static constexpr Bridge stringRows[] = {
    {"MultiByteToWideChar", DoMultiByteToWideChar},
    {"_wcsicmp", "d tt"},
    {"_wcslwr", DoWcslwr},
    {"_wtol", "d t"},
    {"wcslen", DoWcslen},
    {"wcsncpy", DoWcsncpy},
    {"wcsstr", DoWcsstr},
};

Bridges StringBridges()
{
    return stringRows;
}

} // namespace runner
