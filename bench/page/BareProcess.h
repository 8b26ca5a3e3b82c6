// What a page has to ask the platform about each process, and nothing else.
#pragma once

#include "platform/ce.h"

// Path, icon and heaps.
void AskBareProcess(DWORD processId);
