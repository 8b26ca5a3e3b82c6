// What the host puts onto the guest's stack for the length of a call: structures of a message, for instance.
#pragma once

#include "tools/runner/calls/Guest.h"

#include <cstring>

namespace runner {

class Frame
{
    Guest& guest;
    const Registers saved;

  public:
    explicit Frame(Guest& itsGuest) : guest(itsGuest), saved(itsGuest.machine.processor.State()) {}
    ~Frame() { guest.machine.processor.Restore(saved); }
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    // Room of which nothing is defined yet.
    Address Reserve(Word size) { return guest.LowerStack(size); }
    Address Push(const void* data, Word size)
    {
        const Address address = Reserve(size);
        std::memcpy(guest.machine.memory.Checked(address, 1, size, Access::Write), data, size);
        return address;
    }
    template <class T>
    Address Push(const T& value)
    {
        static_assert(std::is_trivially_copyable_v<T>);
        return Push(&value, sizeof(T));
    }
    // With its zero; null stays null.
    Address PushText(const char16_t* text)
    {
        return text ? Push(text,
                           static_cast<Word>((std::char_traits<char16_t>::length(text) + 1) * sizeof *text))
                    : 0;
    }
};

} // namespace runner
