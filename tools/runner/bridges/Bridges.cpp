// The subjects of the bridges, as one list.
#include "tools/runner/bridges/Bridges.h"

namespace runner {

static constexpr Bridges (*subjects[])() = {
    PaintingBridges,
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
