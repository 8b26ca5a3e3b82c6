// The subjects of the bridges, as one list.
#include "tools/runner/bridges/Bridges.h"

namespace runner {

static constexpr Bridges (*subjects[])() = {
    DeviceBridges,   DialogBridges,      FileBridges,   FormattingBridges, GraphicObjectBridges,
    HeapWalkBridges, ImagingBridges,     KeyBridges,    LibraryBridges,    MemoryBridges,
    MenuBridges,     PaintingBridges,    QueueBridges,  RegistryBridges,   ResourceBridges,
    ShellBridges,    ShellWindowBridges, StringBridges, SystemBridges,     TextPaintingBridges,
    ToolhelpBridges, WindowBridges,
};

const Bridge* FindBridge(std::string_view name)
{
    for (const auto subject : subjects) {
        for (const Bridge& bridge : subject()) {
            if (bridge.name == name) {
                return &bridge;
            }
        }
    }
    return nullptr;
}

} // namespace runner
