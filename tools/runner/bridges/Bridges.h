// The subjects of the bridges. Each has a file of its name with its rows; a new one is added here and in
// Bridges.cpp.
#pragma once

#include "tools/runner/calls/Bridge.h"

#include <string_view>

namespace runner {

Bridges DialogBridges();
Bridges GraphicObjectBridges();
Bridges KeyBridges();
Bridges MenuBridges();
Bridges PaintingBridges();
Bridges QueueBridges();
Bridges ResourceBridges();
Bridges ShellWindowBridges();
Bridges SystemBridges();
Bridges TextPaintingBridges();
Bridges WindowBridges();

// Of all subjects; null for a function that none has.
const Bridge* FindBridge(std::string_view name);

} // namespace runner
