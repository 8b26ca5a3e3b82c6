// Shortcut: what a shortcut file of the device's form, a line of text, or of the PC's form starts.
#pragma once

#include <string>

namespace handheld {

struct Shortcut
{
    std::wstring command;   // the program and its arguments, in quotes where they are needed
    std::wstring path;      // the program alone, without quotes
    std::wstring arguments; // the rest of the command
    std::wstring folder;    // to start it in; only the PC's form has one
};

bool HasShortcutExtension(const std::wstring& path);

// False when the file cannot be read or is neither form. file: a path of the PC.
bool ReadShortcut(const std::wstring& file, Shortcut& shortcut);

} // namespace handheld
