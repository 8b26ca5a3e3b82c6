// Pop-up menus of the program.
#include "platform/pc/common/SoftKeys.h"

extern "C" BOOL WINAPI ce_TrackPopupMenuEx(HMENU menu, UINT flags, int x, int y, HWND owner,
                                           TPMPARAMS* parameters)
{
    return handheld::TrackMenu(menu, flags, x, y, owner, parameters, {});
}
