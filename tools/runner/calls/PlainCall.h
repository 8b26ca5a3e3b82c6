// Calls a plain function of the host's for the guest.
#pragma once

#include "tools/runner/calls/Guest.h"

namespace runner {

Word CallPlain(Call& call, const Form& form, Guest::HostFunction function);

// As the host's window manager numbers system colours; the device's indices carry a mark, without which they
// are reported.
std::uint64_t ColourIndexOf(Call& call, Word index);
// A brush, or a system colour's index plus one.
std::uint64_t BrushOf(Call& call, Word brush);

} // namespace runner
