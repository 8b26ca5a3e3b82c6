// Corrects the repainting of a virtual list view.
#pragma once

#include <windows.h>

// To be called once for a list view of style LVS_OWNERDATA, right after its creation and before anybody
// subclasses it.
void RepaintWhenListMoves(HWND list);
