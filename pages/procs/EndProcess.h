// Ending a process by the user's will: asked to close first, and ended by force only after two questions.
#pragma once

#include "pages/procs/SProcInfo.h"

// Processes that the system needs, by their whole names, letter case aside.
bool IsProtectedProcess(const CStr& name);
// Asks, tells and waits (two seconds at most); owner is the boxes' window. True when something was tried or
// declined, so that the list has to be refilled; false when the process was refused, when it is the program
// itself, and when the main window went meanwhile.
bool EndProcess(HWND owner, const SProcIdentity& process);
