// What the program tells of the PC itself, compared with what the PC answers.
#include "tests/e2e/pages/sysinfo/GaugeSession.h"

#include <algorithm>

using namespace rig;

namespace {

// A size that a report tells, cut to hundredths of its unit.
struct Told
{
    double bytes;
    double unit;
};

} // namespace

static constexpr wchar_t totalLabel[] = L"\r\nTotal: ";
static constexpr wchar_t freeLabel[] = L"\r\nAvailable: ";
static constexpr wchar_t usedLabel[] = L"\r\nUsed: ";

// The size behind a label in the paragraph with this heading.
static Told SizeIn(const std::wstring& report, const std::wstring& heading, const wchar_t* label)
{
    size_t place = report.find(heading);
    place = place == std::wstring::npos ? place : report.find(label, place);
    if (place == std::wstring::npos) {
        ADD_FAILURE() << testing::PrintToString(heading) << " is not told";
        return {};
    }
    wchar_t* rest = nullptr;
    const double value = wcstod(report.c_str() + place + wcslen(label), &rest);
    double unit = 1;
    for (const wchar_t* name : {L" B", L" KB", L" MB", L" GB", L" TB"}) {
        if (wcsncmp(rest, name, wcslen(name)) == 0) {
            return {value * unit, unit};
        }
        unit *= 1024;
    }
    ADD_FAILURE() << "no unit in " << testing::PrintToString(report);
    return {};
}

static void ExpectSize(unsigned long long bytes, const Told& told)
{
    EXPECT_NEAR(static_cast<double>(bytes), told.bytes, told.unit * 0.011);
}

class SysInfoRealFiguresTest : public GaugeSession
{
  protected:
    std::wstring Report(int command) const
    {
        const HWND dialog = OpenReport(command);
        const std::wstring report = ReportText(dialog);
        Send(dialog, WM_COMMAND, IDOK);
        EXPECT_TRUE(WaitFor([=] { return !IsWindow(dialog); }));
        return report;
    }
};

TEST_F(SysInfoRealFiguresTest, MemoryAndStorageAreThoseOfThePc)
{
    ShowReal();
    ASSERT_FALSE(HasFatalFailure());
    const std::wstring report = Report(MemoryInfoCommand);
    MEMORYSTATUSEX memory = {};
    memory.dwLength = sizeof(memory);
    ASSERT_TRUE(GlobalMemoryStatusEx(&memory));
    ULARGE_INTEGER storage = {};
    ASSERT_TRUE(GetDiskFreeSpaceExW(L"C:\\", nullptr, &storage, nullptr));
    // What a device can count up to.
    const unsigned long long most = 0xFFFFFFFF;
    const std::pair<const wchar_t*, unsigned long long> totals[] = {
        {L"PHYSICAL MEMORY:", std::min(memory.ullTotalPhys, most)},
        {L"VIRTUAL MEMORY:", std::min(memory.ullTotalVirtual, most)},
        {L"PAGE FILE:", std::min(memory.ullTotalPageFile, most)},
        {L"STORAGE MEMORY:", storage.QuadPart}};
    for (const auto& [heading, total] : totals) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(heading)));
        const Told told = SizeIn(report, heading, totalLabel);
        ExpectSize(total, told);
        const Told free = SizeIn(report, heading, freeLabel);
        const Told used = SizeIn(report, heading, usedLabel);
        EXPECT_NEAR(told.bytes, free.bytes + used.bytes, 0.011 * (told.unit + free.unit + used.unit));
    }
}

TEST_F(SysInfoRealFiguresTest, TheBatteryIsThatOfThePc)
{
    ShowReal();
    ASSERT_FALSE(HasFatalFailure());
    SYSTEM_POWER_STATUS power = {};
    if (!GetSystemPowerStatus(&power)) {
        EXPECT_TRUE(HasRows(2));
        EXPECT_EQ(L"Battery info is not available", Report(BatteryInfoCommand));
        return;
    }
    EXPECT_TRUE(HasRows(3));
    const std::wstring sources[] = {L" Offline (Battery used)", L" Online (Charging)"};
    const std::wstring source = power.ACLineStatus < 2 ? sources[power.ACLineStatus] : L" Unknown";
    const int percent = power.BatteryLifePercent;
    const std::wstring charge = percent <= 100 ? std::to_wstring(percent) + L"%" : L"Unknown";
    const std::wstring report = Report(BatteryInfoCommand);
    EXPECT_TRUE(report.starts_with(L"AC POWER STATUS:\r\n" + source +
                                   L"\r\n\r\nPercentage of full battery charge remaining: " + charge +
                                   L"\r\n\r\nNumber of seconds"))
        << testing::PrintToString(report);
    ExpectGauge(2, {L"Battery", percent, std::to_wstring(percent) + L"%",
                    power.ACLineStatus == 1 ? L"Charging " : L""});
}
