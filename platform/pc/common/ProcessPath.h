// Which program a process runs, and what the active profile says of it.
#pragma once

#include "platform/pc/common/ActiveProfile.h"

#include <windows.h>

namespace handheld {

// The path of the process's executable; empty when it cannot be told.
std::wstring PathOfProcess(HANDLE process);

// Null when there is none. Only a profile with such scripts makes the program's path worth its questions.
// The last error is what it was.
const ProcessScript* ScriptOfProcess(DWORD processId);

} // namespace handheld
