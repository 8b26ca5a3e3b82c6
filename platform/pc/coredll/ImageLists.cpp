// Image lists.
#include <windows.h>

#include <commctrl.h>

namespace {

constexpr int SmallIcon = 16;

} // namespace

// Unlike the PC's function it never leaves the sizes unset: a list that is not there has small icons.
extern "C" BOOL WINAPI ce_ImageList_GetIconSize(HIMAGELIST list, int* width, int* height)
{
    if (list && ImageList_GetIconSize(list, width, height))
        return TRUE;
    if (width)
        *width = SmallIcon;
    if (height)
        *height = SmallIcon;
    return FALSE;
}
