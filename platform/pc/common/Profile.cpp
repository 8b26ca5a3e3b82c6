// Profile: reading the text form, an .ini file with the sections [handheld] and [heap].
#include "platform/pc/common/Profile.h"

#include <limits>
#include <optional>

namespace handheld {

static std::wstring_view Trimmed(std::wstring_view text)
{
    const wchar_t* blanks = L" \t\r\n\xFEFF";
    const size_t first = text.find_first_not_of(blanks);
    if (first == std::wstring_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

static wchar_t LowerAscii(wchar_t c)
{
    return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c + (L'a' - L'A')) : c;
}

static std::wstring Lower(std::wstring_view text)
{
    std::wstring lower(text);
    for (wchar_t& c : lower) {
        c = LowerAscii(c);
    }
    return lower;
}

// Cuts the text before the separator off its front; the last piece leaves nothing and clears `more`.
static std::wstring_view NextPiece(std::wstring_view& rest, wchar_t separator, bool& more)
{
    const size_t end = rest.find(separator);
    const std::wstring_view piece = rest.substr(0, end);
    more = end != std::wstring_view::npos;
    rest = more ? rest.substr(end + 1) : std::wstring_view();
    return Trimmed(piece);
}

static std::optional<unsigned> Number(std::wstring_view text)
{
    unsigned long long value = 0;
    if (text.empty()) {
        return std::nullopt;
    }
    for (const wchar_t c : text) {
        if (c < L'0' || c > L'9') {
            return std::nullopt;
        }
        value = value * 10 + static_cast<unsigned>(c - L'0');
        if (value > std::numeric_limits<unsigned>::max()) {
            return std::nullopt;
        }
    }
    return static_cast<unsigned>(value);
}

static void SetNumber(int& field, std::wstring_view text, unsigned lowest, unsigned highest)
{
    const std::optional<unsigned> value = Number(text);
    if (value && *value >= lowest && *value <= highest) {
        field = static_cast<int>(*value);
    }
}

static void SetHandheldKey(Profile& profile, const std::wstring& key, std::wstring_view value)
{
    if (key == L"platform") {
        if (!value.empty()) {
            profile.platformName = value;
        }
    } else if (key == L"width") {
        SetNumber(profile.width, value, 96, 4096);
    } else if (key == L"height") {
        SetNumber(profile.height, value, 96, 4096);
    } else if (key == L"dpi") {
        SetNumber(profile.dpi, value, 72, 480);
    } else if (key == L"tier") {
        SetNumber(profile.securityTier, value, 1, 2);
    } else if (key == L"cards") {
        profile.cards.clear();
        for (bool more = true; more;) {
            if (const std::wstring_view card = NextPiece(value, L',', more); !card.empty()) {
                profile.cards.emplace_back(card);
            }
        }
    }
}

// "100, 200 | 300": two heaps. Any malformed number makes the whole line count for nothing.
static void AddHeapScript(Profile& profile, const std::wstring& program, std::wstring_view value)
{
    HeapScript script{program, {}};
    for (bool moreHeaps = true; moreHeaps;) {
        std::wstring_view heap = NextPiece(value, L'|', moreHeaps);
        std::vector<unsigned>& blocks = script.heaps.emplace_back();
        for (bool more = !heap.empty(); more;) {
            const std::optional<unsigned> size = Number(NextPiece(heap, L',', more));
            if (!size) {
                return;
            }
            blocks.push_back(*size);
        }
    }
    profile.heapScripts.push_back(std::move(script));
}

bool Profile::IsSmartphone() const
{
    return Lower(platformName).find(L"smartphone") != std::wstring::npos;
}

const HeapScript* Profile::FindHeapScript(std::wstring_view program) const
{
    if (heapScripts.empty()) {
        return nullptr;
    }
    if (const size_t slash = program.find_last_of(L"\\/"); slash != std::wstring_view::npos) {
        program.remove_prefix(slash + 1);
    }
    const std::wstring name = Lower(program);
    for (const HeapScript& script : heapScripts) {
        if (script.program == name) {
            return &script;
        }
    }
    return nullptr;
}

Profile ParseProfile(std::wstring_view text)
{
    Profile profile;
    std::wstring section;
    for (bool more = true; more;) {
        const std::wstring_view line = NextPiece(text, L'\n', more);
        if (line.empty() || line.front() == L';' || line.front() == L'#') {
            continue;
        }
        if (line.front() == L'[' && line.back() == L']') {
            section = Lower(Trimmed(line.substr(1, line.size() - 2)));
            continue;
        }
        const size_t equals = line.find(L'=');
        if (equals == std::wstring_view::npos) {
            continue;
        }
        const std::wstring key = Lower(Trimmed(line.substr(0, equals)));
        const std::wstring_view value = Trimmed(line.substr(equals + 1));
        if (section == L"handheld") {
            SetHandheldKey(profile, key, value);
        } else if (section == L"heap") {
            AddHeapScript(profile, key, value);
        }
    }
    return profile;
}

} // namespace handheld
