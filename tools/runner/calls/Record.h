// A structure in the guest's memory, accessed member by member: what nobody reads need not be defined.
#pragma once

#include "tools/runner/machine/GuestMemory.h"

#include <concepts>
#include <cstddef>
#include <type_traits>

namespace runner {

// T: the structure as the guest lays it out, of words and their like; or a single word.
template <class T>
class Record
{
    static_assert(std::is_trivially_copyable_v<T> && std::is_standard_layout_v<T>);

    GuestMemory* memory;
    Address address;

  public:
    Record(GuestMemory& guestMemory, Address itsAddress) : memory(&guestMemory), address(itsAddress) {}

    explicit operator bool() const { return address != 0; }
    Address At() const { return address; }
    template <class M, class S>
    requires std::same_as<S, T> Address At(M S::*member)
    const
    {
        alignas(T) static const char room[sizeof(T)] = {};
        const T* const origin = reinterpret_cast<const T*>(room);
        return address + static_cast<Address>(reinterpret_cast<const char*>(&(origin->*member)) - room);
    }

    // One member, which has to be defined.
    template <class M, class S>
    requires std::same_as<S, T> M Get(M S::*member)
    const { return memory->Read<M>(At(member)); }
    // One member, where it does not matter whether it is defined.
    template <class M, class S>
    requires std::same_as<S, T> M Look(M S::*member)
    const
    {
        M value;
        std::memcpy(&value, memory->Checked(At(member), 1, sizeof(M), Access::Look), sizeof(M));
        return value;
    }
    template <class M, class S>
    requires std::same_as<S, T>
    void Set(M S::*member, const std::type_identity_t<M>& value) const
    {
        memory->Write<M>(At(member), value);
    }
    // The whole, of which every byte has to be defined.
    T GetAll() const { return memory->Read<T>(address); }
    void SetAll(const T& value) const { memory->Write<T>(address, value); }
};

} // namespace runner
