// The sections [memory], [battery] and [storage] of a profile.
#include "platform/pc/common/ProfileSections.h"
#include "platform/pc/common/ProfileText.h"

namespace handheld {

void SetMemoryKey(Profile& profile, const std::wstring& key, std::wstring_view value)
{
    MemoryScript& memory = profile.memory;
    const struct
    {
        const wchar_t* key;
        std::optional<unsigned long long>& figure;
    } figures[] = {
        {L"physical", memory.physical.total},    {L"physical-free", memory.physical.free},
        {L"page-file", memory.pageFile.total},   {L"page-file-free", memory.pageFile.free},
        {L"virtual", memory.virtualSpace.total}, {L"virtual-free", memory.virtualSpace.free},
    };
    for (const auto& figure : figures) {
        if (key == figure.key) {
            SetNumber(figure.figure, value);
        }
    }
}

// Sets the choice when the value is one of its two words.
static void SetChoice(bool& choice, std::wstring_view value, const wchar_t* no, const wchar_t* yes)
{
    const std::wstring word = Lower(value);
    if (word == no || word == yes) {
        choice = word == yes;
    }
}

void SetBatteryKey(Profile& profile, const std::wstring& key, std::wstring_view value)
{
    BatteryScript& battery = profile.battery;
    if (key == L"present") {
        SetChoice(battery.present, value, L"no", L"yes");
    } else if (key == L"when") {
        SetChoice(battery.onlyWhenMissing, value, L"always", L"missing");
    } else if (key == L"percent") {
        SetNumber(battery.percent, value);
    } else if (key == L"ac") {
        SetNumber(battery.lineStatus, value);
    } else if (key == L"life") {
        SetNumber(battery.life, value);
    } else if (key == L"full-life") {
        SetNumber(battery.fullLife, value);
    } else if (key == L"backup-percent") {
        SetNumber(battery.backupPercent, value);
    }
}

// "fail", or "total, free" in bytes.
void AddStorageScript(Profile& profile, const std::wstring& path, std::wstring_view value)
{
    if (Lower(value) == L"fail") {
        profile.storageScripts.push_back({.path = path, .fails = true});
        return;
    }
    bool more = false;
    const auto total = Number<unsigned long long>(NextPiece(value, L',', more));
    const auto free = Number<unsigned long long>(Trimmed(value));
    if (total && free) {
        profile.storageScripts.push_back({.path = path, .fails = false, .total = *total, .free = *free});
    }
}

} // namespace handheld
