// What the handheld's hardware buttons start, as the registry says.
#pragma once

#include <windows.h>

#include <string>

namespace handheld {

// The path of a button's key below HKEY_LOCAL_MACHINE: its name is 40C1 for 0xC1.
std::wstring ButtonKey(int button);

// The command line of the button; empty when the registry has no text for it.
std::wstring ButtonCommand(int button);

// A command line's program, which may be quoted, and what follows it.
struct ButtonStart
{
    std::wstring file;
    std::wstring arguments;
};

ButtonStart SplitButtonCommand(const std::wstring& command);

} // namespace handheld
