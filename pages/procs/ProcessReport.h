// The plain-text report on a process.
#pragma once

#include "pages/procs/SProcInfo.h"

// Path, id, memory and threads as they were listed, the system version that it asks for, and its modules.
// What cannot be had is said in the text; of a process that has gone only the listed facts stand.
void AppendProcessReport(CStr& report, const SProcInfo& process);
