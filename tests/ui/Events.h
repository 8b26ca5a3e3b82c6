// A diary of what happened, in order, with names for the windows that take part.
#pragma once

#include "platform/ce.h"

#include <string>
#include <vector>

using Events = std::vector<std::string>;

void Note(const std::string& event);
// What was noted since the last call.
Events TakeEvents();

// "1,2,-3": the parameters of an event.
std::string Numbers(uint64_t first, uint64_t second, int64_t third);

// Events call the window so from now on.
void NameWindow(HWND window, const std::string& name);
// "null" for none, "?" for one without a name.
std::string NameOf(HWND window);
// Forgets the events and the names.
void ResetEvents();
