// How a function of the host's serves a call of the guest's: one row of a table.
#pragma once

#include "tools/runner/machine/Value.h"

#include <span>

namespace runner {

class Call;

struct Bridge
{
    // Serves the call; the result is what the guest finds in r0.
    using Handler = Word (*)(Call& call);

    const char* name;
    const char* form = nullptr;
    Handler handler = nullptr;

    // A function of plain parameters, which is called as its form says (see Form.h).
    constexpr Bridge(const char* itsName, const char* itsForm) : name(itsName), form(itsForm) {}
    // One with structures of pointers, callbacks, or more of its own than a form can say.
    constexpr Bridge(const char* itsName, Handler itsHandler) : name(itsName), handler(itsHandler) {}
};

using Bridges = std::span<const Bridge>;

} // namespace runner
