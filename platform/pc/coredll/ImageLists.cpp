// Image lists.
#include <windows.h>

#include <commctrl.h>

static constexpr int smallIcon = 16;

// Unlike the PC's function it never leaves the sizes unset: a list that is not there has small icons.
extern "C" BOOL WINAPI ce_ImageList_GetIconSize(HIMAGELIST list, int* width, int* height)
{
    if (list && ImageList_GetIconSize(list, width, height)) {
        return TRUE;
    }
    if (width) {
        *width = smallIcon;
    }
    if (height) {
        *height = smallIcon;
    }
    return FALSE;
}
