// The device's shortcut files.
#include "platform/pc/common/ShortcutText.h"

namespace handheld {

std::string_view ShortcutTextCommand(std::string_view text)
{
    const size_t sign = text.find_first_not_of("0123456789");
    if (sign == 0 || sign == std::string_view::npos || text[sign] != '#') {
        return {};
    }
    text.remove_prefix(sign + 1);
    return text.substr(0, text.find_first_of(std::string_view("\r\n\0", 3)));
}

CommandParts SplitCommand(std::wstring_view command)
{
    const bool quoted = !command.empty() && command.front() == L'"';
    if (quoted) {
        command.remove_prefix(1);
    }
    const size_t end = command.find(quoted ? L'"' : L' ');
    if (end == std::wstring_view::npos) {
        return {command, {}};
    }
    const size_t arguments = command.find_first_not_of(L' ', end + 1);
    return {command.substr(0, end),
            arguments == std::wstring_view::npos ? std::wstring_view() : command.substr(arguments)};
}

} // namespace handheld
