// The two text reports of the system information page. They ask the platform afresh.
#pragma once

#include "framework/CStr.h"

// Main and virtual memory, page file, internal storage and cards.
void AppendMemoryReport(CStr& report);
// Both batteries, or that nothing is known of them.
void AppendBatteryReport(CStr& report);
