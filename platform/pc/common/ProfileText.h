// The pieces that a profile's lines are made of.
#pragma once

#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace handheld {

std::wstring_view Trimmed(std::wstring_view text);
std::wstring Lower(std::wstring_view text); // ASCII letters only

// The line up to a ';' or '#' that stands at its beginning or behind a blank: names may hold either.
std::wstring_view WithoutComment(std::wstring_view line);

// Cuts the text before the separator off its front; the last piece leaves nothing and clears `more`.
std::wstring_view NextPiece(std::wstring_view& rest, wchar_t separator, bool& more);

// Decimal digits and nothing else, up to and including `highest`.
std::optional<unsigned long long>
LargeNumber(std::wstring_view text,
            unsigned long long highest = std::numeric_limits<unsigned long long>::max());

// The same for a field of the type it shall go to.
template <class Field>
std::optional<Field> Number(std::wstring_view text)
{
    const std::optional<unsigned long long> value = LargeNumber(text, std::numeric_limits<Field>::max());
    return value ? std::optional<Field>(static_cast<Field>(*value)) : std::nullopt;
}

// A malformed text leaves the field as it is.
template <class Field>
void SetNumber(std::optional<Field>& field, std::wstring_view text)
{
    if (const std::optional<Field> value = Number<Field>(text)) {
        field = value;
    }
}

} // namespace handheld
