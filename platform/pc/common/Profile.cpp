// Profile: reading the text form, an .ini file, and finding what it says of one program or path.
#include "platform/pc/common/Profile.h"

#include "platform/pc/common/ProfileSections.h"
#include "platform/pc/common/ProfileText.h"

#include <utility>

namespace handheld {

static void SetInt(int& field, std::wstring_view text, int lowest, int highest)
{
    const std::optional<int> value = Number<int>(text);
    if (value && *value >= lowest && *value <= highest) {
        field = *value;
    }
}

// `"Storage Card", CF Card, ""`: quotes are for a card without a name; one backslash in front is the root's.
static std::vector<std::wstring> CardNames(std::wstring_view value)
{
    std::vector<std::wstring> cards;
    for (bool more = true; more;) {
        std::wstring_view card = NextPiece(value, L',', more);
        if (card.empty()) {
            continue;
        }
        if (card.size() >= 2 && card.front() == L'"' && card.back() == L'"') {
            card = card.substr(1, card.size() - 2);
        }
        if (!card.empty() && card.front() == L'\\') {
            card.remove_prefix(1);
        }
        cards.emplace_back(card);
    }
    return cards;
}

// In degrees.
static void SetOrientation(int& field, std::wstring_view text)
{
    static constexpr std::pair<int, int> orientations[] = {{0, 0}, {90, 1}, {180, 2}, {270, 4}};
    const std::optional<int> degrees = Number<int>(text);
    for (const auto& [known, orientation] : orientations) {
        if (degrees == known) {
            field = orientation;
        }
    }
}

void SetHandheldKey(Profile& profile, const std::wstring& key, std::wstring_view value)
{
    if (key == L"platform") {
        if (!value.empty()) {
            profile.platformName = value;
        }
    } else if (key == L"width") {
        SetInt(profile.width, value, 96, 4096);
    } else if (key == L"height") {
        SetInt(profile.height, value, 96, 4096);
    } else if (key == L"dpi") {
        SetInt(profile.dpi, value, 72, 480);
    } else if (key == L"orientation") {
        SetOrientation(profile.orientation, value);
    } else if (key == L"tier") {
        SetInt(profile.securityTier, value, 1, 2);
    } else if (key == L"root") {
        profile.root = value.substr(0, value.find_last_not_of(L'\\') + 1);
    } else if (key == L"start-menu") {
        profile.startMenu = value;
    } else if (key == L"hold-ms") {
        SetInt(profile.holdMilliseconds, value, 1, 60000);
    } else if (key == L"cards") {
        profile.cards = CardNames(value);
    }
}

bool Profile::IsSmartphone() const
{
    return Lower(platformName).find(L"smartphone") != std::wstring::npos;
}

template <class Script>
static const Script* FindByProgram(const std::vector<Script>& scripts, std::wstring_view program)
{
    if (scripts.empty()) {
        return nullptr;
    }
    if (const size_t slash = program.find_last_of(L"\\/"); slash != std::wstring_view::npos) {
        program.remove_prefix(slash + 1);
    }
    const std::wstring name = Lower(program);
    for (const Script& script : scripts) {
        if (script.program == name) {
            return &script;
        }
    }
    return nullptr;
}

const HeapScript* Profile::FindHeapScript(std::wstring_view program) const
{
    return FindByProgram(heapScripts, program);
}

const ProcessScript* Profile::FindProcessScript(std::wstring_view program) const
{
    return FindByProgram(processScripts, program);
}

const StorageScript* Profile::FindStorageScript(std::wstring_view path) const
{
    const std::wstring wanted = Lower(path);
    for (const StorageScript& script : storageScripts) {
        if (script.path == wanted) {
            return &script;
        }
    }
    return nullptr;
}

static void SetKey(Profile& profile, std::wstring_view section, std::wstring_view line, size_t equals)
{
    static constexpr struct
    {
        const wchar_t* section;
        void (*set)(Profile& profile, const std::wstring& key, std::wstring_view value);
    } sections[] = {
        {L"handheld", SetHandheldKey},  {L"memory", SetMemoryKey},      {L"battery", SetBatteryKey},
        {L"storage", AddStorageScript}, {L"process", AddProcessScript}, {L"heap", AddHeapScript},
    };
    for (const auto& known : sections) {
        if (section == known.section) {
            known.set(profile, Lower(Trimmed(line.substr(0, equals))), Trimmed(line.substr(equals + 1)));
        }
    }
}

Profile ParseProfile(std::wstring_view text)
{
    Profile profile;
    std::wstring section;
    for (bool more = true; more;) {
        const std::wstring_view line = Trimmed(WithoutComment(NextPiece(text, L'\n', more)));
        if (line.empty()) {
            continue;
        }
        const size_t equals = line.find(L'=');
        if (line.front() == L'[' && line.back() == L']') {
            section = Lower(Trimmed(line.substr(1, line.size() - 2)));
        } else if (equals != std::wstring_view::npos && !Trimmed(line.substr(0, equals)).empty()) {
            SetKey(profile, section, line, equals);
        }
    }
    return profile;
}

} // namespace handheld
