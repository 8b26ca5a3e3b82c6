// The handheld's keys, and where they are on the PC's keyboard.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace handheld {

// The device's codes of keys that the PC's keyboard has under others.
inline constexpr int firstButton = 0xC1;
inline constexpr int buttonCount = 4;
inline constexpr int homeKey = VK_LWIN;
inline constexpr int endKey = VK_F4;

// Not a key of a device: shows the list of keys.
inline constexpr int listKey = -1;

// A key of the PC's keyboard.
struct PcKey
{
    DWORD code;
    bool extended; // false for the number pad's Home and End
};

// The device's code of the key that a PC's key presses; 0 for a key that is itself on the handheld.
int HandheldKeyOf(const PcKey& key, bool isSmartphone);

struct KeyLine
{
    std::wstring pcKey;
    std::wstring meaning;
};

// All keys, for the user to read.
std::vector<KeyLine> ListKeys(bool isSmartphone);

} // namespace handheld
