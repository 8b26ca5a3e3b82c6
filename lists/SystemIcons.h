// The shell's small-icon image list and the indices of files in it.
#pragma once

#include "platform/ce.h"

// Index of the icon that the shell shows for path; -1 when it has none. An empty path is never asked for: the
// shell would answer with the desktop's icon.
int SystemIconIndex(const wchar_t* path);

struct SSystemIcons
{
    HIMAGELIST list = nullptr; // the shell's own, never destroyed
    int32_t rootIcon = -1;     // index of the root folder's icon
    int width = 16;            // pixels; 16 when the list cannot tell
    int height = 16;

    // Fetches the list and its measures.
    void Fetch();
    // Side of the square large pictures that go with these icons: 32 or 48 pixels.
    int LargeSize() const { return width < 17 ? 32 : 48; }
};
