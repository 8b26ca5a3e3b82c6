// Between the guest's words and the host's handles and texts.
#pragma once

#include "tools/runner/calls/Call.h"

#include "platform/ce.h"

namespace runner {

// The one guest of this process, for what the host calls back without a place for it.
Guest& TheGuest();
void SetTheGuest(Guest& guest);

// A handle of windows, menus, GDI, files, processes: the host's is the word with its sign.
template <class Handle>
Handle HandleOf(Word word)
{
    return reinterpret_cast<Handle>(static_cast<LONG_PTR>(static_cast<LONG>(word)));
}
template <class Handle>
Handle HandleAt(Call& call, unsigned index)
{
    return HandleOf<Handle>(call.Argument(index));
}
// The guest's word for one. For what does not fit there are cookies.
template <class Handle>
Word WordOf(Handle handle)
{
    return static_cast<Word>(reinterpret_cast<ULONG_PTR>(handle));
}

// Both have characters of 16 bits.
inline const wchar_t* Wide(const char16_t* text)
{
    return reinterpret_cast<const wchar_t*>(text);
}
inline const char16_t* Narrow(const wchar_t* text)
{
    return reinterpret_cast<const char16_t*>(text);
}
inline const wchar_t* TextArgument(Call& call, unsigned index)
{
    return Wide(call.Text(index));
}
inline HMODULE ModuleArgument(Call& call, unsigned index)
{
    return reinterpret_cast<HMODULE>(static_cast<ULONG_PTR>(call.ModuleOf(call.Argument(index))));
}
// The object of a cookie.
template <class Handle>
Handle ObjectArgument(Call& call, unsigned index, CookieKind kind)
{
    return reinterpret_cast<Handle>(static_cast<ULONG_PTR>(call.Object(index, kind)));
}
template <class Handle>
Word CookieOf(Call& call, CookieKind kind, Handle object)
{
    return call.Cookie(kind, reinterpret_cast<ULONG_PTR>(object));
}

// The program overlooks some refusals, so a size that the device would refuse ends the run.
inline void NeedSize(Call& call, Word size, Word wanted)
{
    if (size != wanted) {
        call.guest.Misuse("a structure of " + std::to_string(size) + " bytes; the device's has " +
                          std::to_string(wanted));
    }
}

} // namespace runner
