// The device's shortcut files: one line of text, the length of the command, '#' and the command.
#pragma once

#include <string_view>

namespace handheld {

// The command `"\Windows\x.exe" -arguments` of the text `27#"\Windows\x.exe" -arguments`, as it stands there;
// empty when it is not such a text. The length only has to be a number: files edited by hand have a wrong
// one.
std::string_view ShortcutTextCommand(std::string_view text);

// A command's path without quotes, and its arguments without the blanks before them.
struct CommandParts
{
    std::wstring_view path;
    std::wstring_view arguments;
};
CommandParts SplitCommand(std::wstring_view command);

} // namespace handheld
