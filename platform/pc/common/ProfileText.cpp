// The pieces that a profile's lines are made of.
#include "platform/pc/common/ProfileText.h"

namespace handheld {

static constexpr std::wstring_view blankCharacters = L" \t\r\n\xFEFF";

std::wstring_view Trimmed(std::wstring_view text)
{
    const size_t first = text.find_first_not_of(blankCharacters);
    if (first == std::wstring_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blankCharacters) - first + 1);
}

std::wstring Lower(std::wstring_view text)
{
    std::wstring lower(text);
    for (wchar_t& c : lower) {
        if (c >= L'A' && c <= L'Z') {
            c = static_cast<wchar_t>(c + (L'a' - L'A'));
        }
    }
    return lower;
}

std::wstring_view WithoutComment(std::wstring_view line)
{
    for (size_t i = 0; i < line.size(); ++i) {
        if ((line[i] == L';' || line[i] == L'#') &&
            (i == 0 || blankCharacters.find(line[i - 1]) != std::wstring_view::npos)) {
            return line.substr(0, i);
        }
    }
    return line;
}

std::wstring_view NextPiece(std::wstring_view& rest, wchar_t separator, bool& more)
{
    const size_t end = rest.find(separator);
    const std::wstring_view piece = rest.substr(0, end);
    more = end != std::wstring_view::npos;
    rest = more ? rest.substr(end + 1) : std::wstring_view();
    return Trimmed(piece);
}

std::optional<unsigned long long> LargeNumber(std::wstring_view text, unsigned long long highest)
{
    unsigned long long value = 0;
    if (text.empty()) {
        return std::nullopt;
    }
    for (const wchar_t c : text) {
        const unsigned digit = static_cast<unsigned>(c) - L'0';
        if (digit > 9 || digit > highest || value > (highest - digit) / 10) {
            return std::nullopt;
        }
        value = value * 10 + digit;
    }
    return value;
}

} // namespace handheld
