// The two text reports of the system information page.
#include "pages/sysinfo/SysInfoReport.h"

#include "framework/ReportText.h"
#include "pages/sysinfo/CVolumes.h"

static constexpr DWORD unknownSeconds = 0xFFFFFFFF;

static void AppendSpace(CStr& report, int64_t total, int64_t free, int64_t used)
{
    AppendLabelledSize(report, L"\r\nTotal: ", total);
    AppendLabelledSize(report, L"\r\nAvailable: ", free);
    AppendLabelledSize(report, L"\r\nUsed: ", used);
}

// The device counts its memory in 32 bits.
static void AppendMemory(CStr& report, const wchar_t* heading, SIZE_T total, SIZE_T free)
{
    const auto total32 = static_cast<uint32_t>(total);
    const auto free32 = static_cast<uint32_t>(free);
    report.Append(heading);
    AppendSpace(report, total32, free32, total32 - free32);
}

void AppendMemoryReport(CStr& report)
{
    MEMORYSTATUS memory = {};
    memory.dwLength = sizeof memory;
    GlobalMemoryStatus(&memory);
    AppendMemory(report, L"PHYSICAL MEMORY:", memory.dwTotalPhys, memory.dwAvailPhys);
    AppendMemory(report, L"\r\n\r\nVIRTUAL MEMORY:", memory.dwTotalVirtual, memory.dwAvailVirtual);
    AppendMemory(report, L"\r\n\r\nPAGE FILE:", memory.dwTotalPageFile, memory.dwAvailPageFile);
    for (CVolumes volumes; volumes.Next();) {
        report.Append(L"\r\n\r\n");
        report.Append(volumes.IsCard() ? volumes.Name() : L"STORAGE MEMORY:");
        AppendSpace(report, static_cast<int64_t>(volumes.Total()), static_cast<int64_t>(volumes.Free()),
                    static_cast<int64_t>(volumes.Total() - volumes.Free()));
    }
}

static const wchar_t* AcLineText(BYTE status)
{
    switch (status) {
    case 0:
        return L" Offline (Battery used)";
    case 1:
        return L" Online (Charging)";
    case 2:
        return L" Backup power";
    default:
        return L" Unknown";
    }
}

static void AppendPercent(CStr& report, const wchar_t* label, BYTE percent)
{
    report.Append(label);
    if (percent > 100) {
        report.Append(L"Unknown");
        return;
    }
    report.AppendInt(percent);
    report.Append(L"%");
}

static void AppendSeconds(CStr& report, const wchar_t* label, DWORD seconds)
{
    report.Append(label);
    if (seconds == unknownSeconds) {
        report.Append(L"Unknown");
        return;
    }
    report.AppendUint(seconds);
    report.Append(L" sec");
}

void AppendBatteryReport(CStr& report)
{
    SYSTEM_POWER_STATUS_EX power = {};
    if (!GetSystemPowerStatusEx(&power, TRUE)) {
        report.Append(L"Battery info is not available");
        return;
    }
    AppendLabelled(report, L"AC POWER STATUS:\r\n", AcLineText(power.ACLineStatus));
    AppendPercent(report, L"\r\n\r\nPercentage of full battery charge remaining: ", power.BatteryLifePercent);
    AppendSeconds(report, L"\r\n\r\nNumber of seconds of battery life when at full charge: ",
                  power.BatteryFullLifeTime);
    AppendSeconds(report, L"\r\n\r\nNumber of seconds of battery life remaining: ", power.BatteryLifeTime);
    AppendPercent(report, L"\r\n\r\nPercentage of full backup battery charge remaining: ",
                  power.BackupBatteryLifePercent);
}
