// Making shortcut files.
#pragma once

#include <string>

namespace handheld {

enum class ShortcutForm
{
    Text, // the device's line of text
    Link, // the PC's own
};

// Both paths are the PC's; in the text the program's is the device's when it lies in its root. A program
// whose path the PC's 8-bit text cannot hold gets a link. False when the file cannot be written.
bool WriteShortcut(const std::wstring& file, const std::wstring& program, ShortcutForm form);

} // namespace handheld
