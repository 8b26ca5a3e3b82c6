// The description of a soft-key menu bar in a program's resources.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace handheld {

// One soft key.
struct SoftKeyButton
{
    static constexpr uint16_t noMenu = 0xFFFF;
    static constexpr uint16_t enabled = 0x0004;

    uint16_t image;
    uint16_t command;
    uint16_t state;
    uint16_t style;
    uint16_t textId; // of the string table
    uint16_t reserved;
    uint16_t subMenu; // index of the pop-up within the bar's menu, NoMenu for a plain button
};

struct MenuBarResource
{
    uint16_t menuId = 0;
    std::vector<SoftKeyButton> buttons;
};

// Reads 16-bit words: the menu's id, the number of buttons, seven words a button. False when the block is too
// short.
bool ReadMenuBarResource(const void* data, size_t size, MenuBarResource& bar);

} // namespace handheld
