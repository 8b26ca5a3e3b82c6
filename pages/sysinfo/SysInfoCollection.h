// What the system information page shows.
#pragma once

#include "framework/CRecords.h"
#include "pages/sysinfo/SSysInfo.h"

// Replaces the records: main memory, internal storage, the storage cards, and the battery when there is one.
void CollectSysInfo(CRecords<SSysInfo>& rows);
