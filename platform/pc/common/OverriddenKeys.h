// Keys of the handheld that a menu bar's owner has asked to get itself.
#pragma once

#include <windows.h>

namespace handheld {

// For a message that was just taken from the queue. A press or release of Back (the PC's Escape) or of a soft
// key that the active window's bar overrides becomes WM_HOTKEY for the bar's owner, or WM_NULL when nobody
// wants it. True when the message was changed.
bool GiveOverriddenKey(MSG& message);

} // namespace handheld
