// Processes, and what the device says of its cards, its power, its memory and its screen.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/FindData.h"
#include "tools/runner/bridges/Host.h"

#include <algorithm>

namespace runner {

static Word DoFirstCard(Call& call)
{
    WIN32_FIND_DATAW data = {};
    const HANDLE search = FindFirstFlashCard(&data);
    if (search != INVALID_HANDLE_VALUE) {
        GiveFindData(call, call.Argument(0), data);
    }
    return CookieOf(call, CookieKind::Search, search);
}

static Word DoNextCard(Call& call)
{
    WIN32_FIND_DATAW data = {};
    const BOOL found = FindNextFlashCard(ObjectArgument<HANDLE>(call, 0, CookieKind::Search), &data);
    if (found) {
        GiveFindData(call, call.Argument(1), data);
    }
    return static_cast<Word>(found);
}

static Word DoPowerStatus(Call& call)
{
    static_assert(sizeof(SYSTEM_POWER_STATUS_EX) == 24, "both sides have it in the same form");
    SYSTEM_POWER_STATUS_EX status = {};
    const BOOL known = GetSystemPowerStatusEx(&status, call.Signed(1));
    if (known) {
        call.RecordAt<SYSTEM_POWER_STATUS_EX>(0).SetAll(status);
    }
    return static_cast<Word>(known);
}

namespace {

struct MemoryStatus
{
    Word length;
    Word load;
    Word totalPhysical;
    Word freePhysical;
    Word totalPageFile;
    Word freePageFile;
    Word totalVirtual;
    Word freeVirtual;
};
static_assert(sizeof(MemoryStatus) == 32);

} // namespace

// The substitute's figures fit into the device's words.
static Word DoMemoryStatus(Call& call)
{
    const auto record = call.RecordAt<MemoryStatus>(0);
    NeedSize(call, record.Get(&MemoryStatus::length), sizeof(MemoryStatus));
    MEMORYSTATUS status = {};
    status.dwLength = sizeof(status);
    GlobalMemoryStatus(&status);
    static constexpr auto word = [](SIZE_T figure) {
        return static_cast<Word>(std::min<SIZE_T>(figure, 0xFFFFFFFF));
    };
    record.SetAll({sizeof(MemoryStatus), status.dwMemoryLoad, word(status.dwTotalPhys),
                   word(status.dwAvailPhys), word(status.dwTotalPageFile), word(status.dwAvailPageFile),
                   word(status.dwTotalVirtual), word(status.dwAvailVirtual)});
    return call.NoResult();
}

static Word DoChangeDisplay(Call& call)
{
    const auto record = call.RecordAt<DEVMODEW>(1);
    if (!record || call.Argument(4) != 0) {
        call.guest.Misuse("a change of the display that is not carried across");
    }
    NeedSize(call, record.Get(&DEVMODEW::dmSize), sizeof(DEVMODEW));
    DEVMODEW mode = {};
    mode.dmSize = sizeof(mode);
    mode.dmFields = record.Get(&DEVMODEW::dmFields);
    if ((mode.dmFields & DM_DISPLAYORIENTATION) != 0) {
        mode.dmDisplayOrientation = record.Get(&DEVMODEW::dmDisplayOrientation);
    }
    const LONG result = ChangeDisplaySettingsEx(TextArgument(call, 0), &mode, HandleAt<HWND>(call, 2),
                                                call.Argument(3), nullptr);
    if (result == DISP_CHANGE_SUCCESSFUL) {
        record.Set(&DEVMODEW::dmDisplayOrientation, mode.dmDisplayOrientation);
    }
    return static_cast<Word>(result);
}

static constexpr Bridge deviceRows[] = {
    {"ChangeDisplaySettingsEx", DoChangeDisplay},
    {"FindFirstFlashCard", DoFirstCard},
    {"FindNextFlashCard", DoNextCard},
    {"GetExitCodeProcess", "u oPq4"},
    {"GetProcessVersion", "d u"},
    {"GetSystemPowerStatusEx", DoPowerStatus},
    {"GlobalMemoryStatus", DoMemoryStatus},
    {"OpenProcess", "oP uiu"},
    {"WaitForSingleObject", "d oPu"},
};

Bridges DeviceBridges()
{
    return deviceRows;
}

} // namespace runner
