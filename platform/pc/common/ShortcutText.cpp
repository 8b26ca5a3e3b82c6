// The device's shortcut files.
#include "platform/pc/common/ShortcutText.h"

namespace handheld {

std::string_view ShortcutTextPath(std::string_view text)
{
    const size_t sign = text.find_first_not_of("0123456789");
    if (sign == 0 || sign == std::string_view::npos || text[sign] != '#') {
        return {};
    }
    text.remove_prefix(sign + 1);
    text = text.substr(0, text.find_first_of(std::string_view("\r\n\0", 3)));
    if (!text.empty() && text.front() == '"') {
        text.remove_prefix(1);
        return text.substr(0, text.find('"'));
    }
    return text.substr(0, text.find(' '));
}

} // namespace handheld
