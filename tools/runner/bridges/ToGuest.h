// Messages of the host's for the guest's window procedures.
#pragma once

#include "tools/runner/bridges/Host.h"

namespace runner {

// Brings the message's structure across, calls the procedure, and brings back what it wrote.
LRESULT GiveToGuest(Address procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam);

} // namespace runner
