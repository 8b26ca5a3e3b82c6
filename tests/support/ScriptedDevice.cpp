// Memory, storage, cards and battery that exist only in a script.
#include "tests/support/ScriptedDevice.h"

#include <algorithm>
#include <cstring>
#include <set>

static ScriptedDevice* scriptedDevice;
static ImportHook* deviceOriginals;
static size_t nextCard;
static std::set<HANDLE> openCardSearches;
static const UINT_PTR firstHandle = 0x7A5C0000; // none that the system gives
static const UINT_PTR handleCount = 0x1000;
static UINT_PTR nextHandle;

enum DeviceFunction
{
    AskMemory, // in the order of the hooks
    AskSize,
    FindFirstCard,
    FindNextCard,
    FindFirst,
    EndFind,
    AskPower
};

static HANDLE OpenSearch()
{
    const HANDLE search = reinterpret_cast<HANDLE>(firstHandle + nextHandle++ % handleCount);
    openCardSearches.insert(search);
    return search;
}

static void WINAPI TellMemory(MEMORYSTATUS* status)
{
    scriptedDevice->calls.emplace_back(L"memory");
    scriptedDevice->memoryLength = status->dwLength;
    *status = scriptedDevice->memory;
}

static BOOL WINAPI TellSize(const wchar_t* path, ULARGE_INTEGER* available, ULARGE_INTEGER* total,
                            ULARGE_INTEGER* free)
{
    scriptedDevice->calls.push_back(std::wstring(L"size ") + path);
    const auto found = scriptedDevice->volumes.find(path);
    if (found == scriptedDevice->volumes.end() || !found->second.answers) {
        return FALSE;
    }
    if (available) {
        available->QuadPart = found->second.available;
    }
    if (total) {
        total->QuadPart = found->second.total;
    }
    if (free) {
        free->QuadPart = found->second.free;
    }
    return TRUE;
}

// A name of the whole length has no end, and what lies behind it is none of it.
static BOOL GiveCard(WIN32_FIND_DATAW* card)
{
    if (nextCard >= scriptedDevice->cards.size()) {
        return FALSE;
    }
    const std::wstring& name = scriptedDevice->cards[nextCard++];
    memset(card, 'X', sizeof *card);
    memcpy(card->cFileName, name.c_str(), std::min<size_t>(name.size() + 1, MAX_PATH) * sizeof(wchar_t));
    return TRUE;
}

static HANDLE WINAPI GiveFirstCard(WIN32_FIND_DATAW* card)
{
    scriptedDevice->calls.emplace_back(L"first card");
    const auto* bytes = reinterpret_cast<const char*>(card);
    scriptedDevice->clearRecord =
        std::all_of(bytes, bytes + sizeof *card, [](char each) { return each == 0; });
    nextCard = 0;
    return GiveCard(card) ? OpenSearch() : INVALID_HANDLE_VALUE;
}

static BOOL WINAPI GiveNextCard(HANDLE search, WIN32_FIND_DATAW* card)
{
    scriptedDevice->calls.emplace_back(openCardSearches.count(search) ? L"next card"
                                                                      : L"next card of no search");
    return GiveCard(card);
}

static HANDLE WINAPI LookFor(const wchar_t* path, WIN32_FIND_DATAW* data)
{
    const auto isOne = [&](const std::wstring& card) { return L"\\" + card == path; };
    const auto found = scriptedDevice->volumes.find(path);
    if (found == scriptedDevice->volumes.end() &&
        std::none_of(scriptedDevice->cards.begin(), scriptedDevice->cards.end(), isOne)) {
        return deviceOriginals[FindFirst].Original<HANDLE WINAPI(const wchar_t*, WIN32_FIND_DATAW*)>()(path,
                                                                                                       data);
    }
    scriptedDevice->calls.push_back(std::wstring(L"look for ") + path);
    return found != scriptedDevice->volumes.end() && found->second.exists ? OpenSearch()
                                                                          : INVALID_HANDLE_VALUE;
}

static BOOL WINAPI CloseSearch(HANDLE search)
{
    const auto number = reinterpret_cast<UINT_PTR>(search);
    if (search != INVALID_HANDLE_VALUE && number - firstHandle >= handleCount) {
        return deviceOriginals[EndFind].Original<BOOL WINAPI(HANDLE)>()(search);
    }
    const bool wasOpen = openCardSearches.erase(search) != 0;
    scriptedDevice->calls.emplace_back(wasOpen ? L"close" : L"close of no search");
    return wasOpen;
}

static BOOL WINAPI TellPower(SYSTEM_POWER_STATUS_EX* status, BOOL update)
{
    scriptedDevice->calls.emplace_back(L"power");
    scriptedDevice->updates.push_back(update);
    if (!scriptedDevice->hasBattery) {
        return FALSE;
    }
    *status = scriptedDevice->battery;
    return TRUE;
}

ScriptedDevice::ScriptedDevice()
    : memory{sizeof memory, 50, 67108864, 33554432, 0, 0, 33554432, 16777216}, battery{},
      hooks{{"GlobalMemoryStatus", TellMemory},    {"GetDiskFreeSpaceExW", TellSize},
            {"FindFirstFlashCard", GiveFirstCard}, {"FindNextFlashCard", GiveNextCard},
            {"FindFirstFileW", LookFor},           {"FindClose", CloseSearch},
            {"GetSystemPowerStatusEx", TellPower}}
{
    battery.BatteryLifePercent = 76;
    battery.BatteryLifeTime = 16200;
    battery.BatteryFullLifeTime = 21600;
    battery.BackupBatteryLifePercent = 100;
    volumes[L"\\"] = {134217728, 83886080};
    openCardSearches.clear();
    deviceOriginals = hooks;
    scriptedDevice = this;
}

ScriptedDevice::~ScriptedDevice()
{
    scriptedDevice = nullptr;
    deviceOriginals = nullptr;
}

void ScriptedDevice::AddCard(const std::wstring& name, uint64_t total, uint64_t free)
{
    cards.push_back(name);
    volumes[L"\\" + name] = {total, free};
}

void ScriptedDevice::AddCards(int count)
{
    for (int i = 0; i < count; i++) {
        AddCard(L"Card " + std::to_wstring(i), 1048576, 524288);
    }
}
