// Reading the description of a menu bar.
#include "platform/pc/common/MenuBarResource.h"

#include <cstring>

namespace handheld {

bool ReadMenuBarResource(const void* data, size_t size, MenuBarResource& bar)
{
    uint16_t head[2];
    if (size < sizeof(head)) {
        return false;
    }
    memcpy(head, data, sizeof(head));
    const size_t count = head[1];
    if ((size - sizeof(head)) / sizeof(SoftKeyButton) < count) {
        return false;
    }
    bar.menuId = head[0];
    bar.buttons.resize(count);
    if (count > 0) {
        memcpy(bar.buttons.data(), static_cast<const char*>(data) + sizeof(head),
               count * sizeof(SoftKeyButton));
    }
    return true;
}

} // namespace handheld
