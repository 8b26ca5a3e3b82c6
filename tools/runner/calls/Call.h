// A call of the guest's that is being served: its parameters and what goes back.
#pragma once

#include "tools/runner/calls/Guest.h"
#include "tools/runner/calls/Record.h"

namespace runner {

class Call
{
    std::uint64_t data;
    bool noResult = false;

  public:
    Guest& guest;

    Call(Guest& itsGuest, std::uint64_t itsData) : data(itsData), guest(itsGuest) {}
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

    // What AddTrap was given.
    std::uint64_t Data() const { return data; }

    // ---- Parameters, counted from 0. Each has to be defined.
    Word Argument(unsigned index) { return guest.machine.processor.Argument(index); }
    std::int32_t Signed(unsigned index) { return static_cast<std::int32_t>(Argument(index)); }
    // The host's handle: the word with its sign, as the host's window manager makes handles of 32 bits.
    std::uint64_t Extended(unsigned index)
    {
        return static_cast<std::uint64_t>(static_cast<std::int64_t>(Signed(index)));
    }
    // The object of a cookie. Reports what is none, or is of another kind, or was closed.
    std::uint64_t Object(unsigned index, CookieKind kind) { return ObjectOf(Argument(index), kind); }
    std::uint64_t ObjectOf(Word cookie, CookieKind kind);
    Word Cookie(CookieKind kind, std::uint64_t host)
    {
        return guest.cookies.Give(kind, host, guest.machine.processor.Place());
    }
    // What the host's resource functions take for a module of the guest's.
    std::uint64_t ModuleOf(Word module);

    // A handle that the guest has to give back, and what takes it.
    Word Given(Word handle);
    Word TakenBack(Word handle);

    // ---- Memory. Null stays null.
    // A structure of the guest's; every member that is read has to be defined.
    template <class T>
    Record<T> RecordAt(unsigned index)
    {
        return Record<T>(guest.machine.memory, Argument(index));
    }
    // Text that ends with a zero.
    const char16_t* Text(unsigned index) { return TextAt(Argument(index)); }
    const char16_t* TextAt(Address address);
    // Text, or the number of a resource.
    const char16_t* TextOrNumber(unsigned index);
    const void* In(Address address, Word size, Word alignment = 4);
    // Every byte counts as written.
    void* Out(Address address, Word size, Word alignment = 4);
    // Nothing does: MarkWritten says what.
    void* Room(Address address, Word size, Word alignment = 4);
    void MarkWritten(Address address, Word size) { guest.machine.memory.MarkDefined(address, size); }
    // The text that the host wrote into a room, its zero included.
    void MarkText(Address address, Word characters);

    // ---- The result
    // Of a function that returns nothing: r0 is nothing that the guest may rely on.
    Word NoResult()
    {
        noResult = true;
        return 0xDEAD0000;
    }
    bool HasNoResult() const { return noResult; }
};

} // namespace runner
