// The subjects of the bridges. Each has a file of its name with its rows; a new one is added here and in
// Bridges.cpp.
#pragma once

#include "tools/runner/calls/Bridge.h"

#include <string_view>

namespace runner {

Bridges DeviceBridges();
Bridges DialogBridges();
Bridges FileBridges();
Bridges FormattingBridges();
Bridges GraphicObjectBridges();
Bridges HeapWalkBridges();
Bridges ImagingBridges();
Bridges KeyBridges();
Bridges LibraryBridges();
Bridges MemoryBridges();
Bridges MenuBridges();
Bridges PaintingBridges();
Bridges QueueBridges();
Bridges RegistryBridges();
Bridges ResourceBridges();
Bridges ShellBridges();
Bridges ShellWindowBridges();
Bridges StringBridges();
Bridges SystemBridges();
Bridges TextPaintingBridges();
Bridges ToolhelpBridges();
Bridges WindowBridges();

// Of all subjects; null for a function that none has.
const Bridge* FindBridge(std::string_view name);

} // namespace runner
