// Matching a file name with a pattern.
#include "platform/pc/common/FindPattern.h"

#include <windows.h>

namespace handheld {

static bool SameLetter(wchar_t a, wchar_t b)
{
    const auto lower = [](wchar_t c) {
        return static_cast<wchar_t>(
            reinterpret_cast<ULONG_PTR>(CharLowerW(reinterpret_cast<wchar_t*>(static_cast<ULONG_PTR>(c)))));
    };
    return a == b || lower(a) == lower(b);
}

bool MatchesPattern(std::wstring_view name, std::wstring_view pattern)
{
    if (pattern == L"*.*") {
        return true;
    }
    // On a mismatch the last '*' takes one character more; earlier ones never need to be tried again.
    size_t n = 0;
    size_t p = 0;
    size_t starAt = std::wstring_view::npos;
    size_t starEnd = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == L'*') {
            starAt = p++;
            starEnd = n;
        } else if (p < pattern.size() && (pattern[p] == L'?' || SameLetter(pattern[p], name[n]))) {
            ++p;
            ++n;
        } else if (starAt != std::wstring_view::npos) {
            p = starAt + 1;
            n = ++starEnd;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == L'*') {
        ++p;
    }
    return p == pattern.size();
}

} // namespace handheld
