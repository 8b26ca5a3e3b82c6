// The processes of the system.
#pragma once

#include "framework/CRecords.h"
#include "pages/procs/SProcInfo.h"

// Replaces the records by one for each process, in the system's order. A system that cannot be asked is
// fatal.
void TakeProcessSnapshot(CRecords<SProcInfo>& processes);
// Whether an id has meanwhile been given to a process of another name, as far as can be told: true when the
// system cannot be asked, false when no process has the id any more.
bool IsTakenByAnother(const SProcIdentity& process);
