// One row of the system information page.
#pragma once

#include "framework/ArrayNames.h"
#include "framework/CStr.h"

enum SysInfoKind : uint32_t
{
    MainMemory = 0,
    InternalStorage = 1,
    StorageCard = 2,
    MainBattery = 3
};

inline constexpr uint32_t sysInfoKinds = 4;

struct SSysInfo
{
    CStr name;
    int64_t free = 0;   // bytes, percent of the battery; negative when the charge is not known
    uint64_t total = 0; // the same; 100 for the battery
    uint32_t kind = 0;  // SysInfoKind
    uint32_t charging = 0;

    int64_t Used() const { return static_cast<int64_t>(total - static_cast<uint64_t>(free)); }
};

QV_ARRAY_NAMES(SSysInfo*, "struct SSysInfo *");
