// The plain-text report on a process.
#pragma once

#include "pages/procs/SProcInfo.h"

// Id, memory and threads as they were listed; path, the system version that it asks for and its modules as
// they are. What cannot be had is said in the text or missing.
void AppendProcessReport(CStr& report, const SProcInfo& process);
