// Which processes the guest's snapshots tell of.
#pragma once

#include <string>

namespace runner {

// Those with this executable's name only; all when it is empty. A measurement wants to say how many there
// are.
void ShowOnlyProcess(const std::wstring& name);

} // namespace runner
