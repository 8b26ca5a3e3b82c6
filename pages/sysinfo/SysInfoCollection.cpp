// What the system information page shows.
#include "pages/sysinfo/SysInfoCollection.h"

#include "framework/Assert.h"
#include "pages/sysinfo/CVolumes.h"

static constexpr BYTE acOnline = 1;

static SSysInfo& Add(CRecords<SSysInfo>& rows, SysInfoKind kind, const wchar_t* name, uint64_t total,
                     int64_t free)
{
    auto* row = new SSysInfo;
    Assert(row != nullptr, ErrorNoMemory, L"CViewSysInfo::FillContents", __LINE__);
    row->name = name;
    row->free = free;
    row->total = total;
    row->kind = kind;
    rows.Append(row);
    return *row;
}

static void AddMemory(CRecords<SSysInfo>& rows)
{
    MEMORYSTATUS memory = {};
    memory.dwLength = sizeof memory;
    GlobalMemoryStatus(&memory);
    Add(rows, MainMemory, L"Physical memory", static_cast<uint32_t>(memory.dwTotalPhys),
        static_cast<uint32_t>(memory.dwAvailPhys));
}

static void AddVolumes(CRecords<SSysInfo>& rows)
{
    for (CVolumes volumes; volumes.Next();) {
        Add(rows, volumes.IsCard() ? StorageCard : InternalStorage,
            volumes.IsCard() ? volumes.Name() : L"Storage memory", volumes.Total(),
            static_cast<int64_t>(volumes.Free()));
    }
}

// A charge that is not known is 255 percent, and shown so.
static void AddBattery(CRecords<SSysInfo>& rows)
{
    SYSTEM_POWER_STATUS_EX power = {};
    if (GetSystemPowerStatusEx(&power, TRUE)) {
        SSysInfo& row = Add(rows, MainBattery, L"Battery", 100, 100 - power.BatteryLifePercent);
        row.charging = power.ACLineStatus == acOnline ? 1 : 0;
    }
}

void CollectSysInfo(CRecords<SSysInfo>& rows)
{
    rows.Clear();
    AddMemory(rows);
    AddVolumes(rows);
    AddBattery(rows);
}
