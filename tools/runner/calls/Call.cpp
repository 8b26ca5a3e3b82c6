// Parameters and memory of a call, checked.
#include "tools/runner/calls/Call.h"

namespace runner {

std::uint64_t Call::ObjectOf(Word cookie, CookieKind kind)
{
    const Cookies::Answer answer = guest.cookies.Take(kind, cookie);
    const std::string name = NameOf(kind);
    switch (answer.state) {
    case Cookies::State::Known:
        return answer.host;
    case Cookies::State::Forgotten:
        guest.Misuse("a " + name + " that was closed", cookie);
    case Cookies::State::OtherKind:
        guest.Misuse("an object of another kind in the place of a " + name, cookie);
    case Cookies::State::Unknown:
        break;
    }
    guest.Misuse("no " + name, cookie);
}

Word Call::Given(Word handle)
{
    guest.handles.Give(handle, guest.machine.processor.Place());
    return handle;
}

Word Call::TakenBack(Word handle)
{
    if (!guest.handles.TakeBack(handle)) {
        guest.Misuse("a handle that the program was not given, or has given back", handle);
    }
    return handle;
}

std::uint64_t Call::ModuleOf(Word module)
{
    return module == guest.image ? guest.hostResources : ObjectOf(module, CookieKind::Module);
}

const char16_t* Call::TextAt(Address address)
{
    if (address == 0) {
        return nullptr;
    }
    for (Address place = address; guest.machine.memory.Read<char16_t>(place) != 0;) {
        place += sizeof(char16_t);
    }
    return reinterpret_cast<const char16_t*>(guest.machine.memory.Host(address));
}

const char16_t* Call::TextOrNumber(unsigned index)
{
    const Word value = Argument(index);
    return value < 0x10000 ? reinterpret_cast<const char16_t*>(static_cast<std::uintptr_t>(value))
                           : TextAt(value);
}

const void* Call::In(Address address, Word size, Word alignment)
{
    return address == 0 ? nullptr : guest.machine.memory.Checked(address, alignment, size, Access::Read);
}

void* Call::Out(Address address, Word size, Word alignment)
{
    return address == 0 ? nullptr : guest.machine.memory.Checked(address, alignment, size, Access::Write);
}

void* Call::Room(Address address, Word size, Word alignment)
{
    return address == 0 ? nullptr : guest.machine.memory.Checked(address, alignment, size, Access::Reserve);
}

void Call::MarkText(Address address, Word characters)
{
    const auto* text = reinterpret_cast<const char16_t*>(guest.machine.memory.Host(address));
    Word length = 0;
    while (length < characters && text[length] != 0) {
        length++;
    }
    MarkWritten(address, static_cast<Word>(sizeof(char16_t)) * (length < characters ? length + 1 : length));
}

} // namespace runner
