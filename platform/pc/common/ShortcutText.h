// The device's shortcut files: one line of text, the length of the command, '#' and the command.
#pragma once

#include <string_view>

namespace handheld {

// The path within the text `27#"\Windows\x.exe" -arguments`, without quotes and arguments; empty when it is
// not such a text. The length only has to be a number: files edited by hand have a wrong one.
std::string_view ShortcutTextPath(std::string_view text);

} // namespace handheld
