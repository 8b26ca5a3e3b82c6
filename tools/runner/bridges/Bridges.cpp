// The subjects of the bridges, as one list.
#include "tools/runner/bridges/Bridges.h"

namespace runner {

static constexpr Bridges (*subjects[])() = {
    DialogBridges,   GraphicObjectBridges, KeyBridges,    MenuBridges,         PaintingBridges, QueueBridges,
    ResourceBridges, ShellWindowBridges,   SystemBridges, TextPaintingBridges, WindowBridges,
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
