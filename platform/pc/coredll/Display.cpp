// The orientation of the screen.
#include "platform/ce.h"
#include "platform/pc/common/Orientation.h"
#include "platform/pc/common/TurnRequest.h"

static LONG Answer(DEVMODEW& mode)
{
    const bool which = mode.dmFields == DM_DISPLAYQUERYORIENTATION;
    const int answer = which ? handheld::allTurns : handheld::ScreenOrientation();
    mode.dmDisplayOrientation = static_cast<DWORD>(answer);
    return DISP_CHANGE_SUCCESSFUL;
}

static LONG Turn(const DEVMODEW& mode)
{
    if (mode.dmFields != DM_DISPLAYORIENTATION || !handheld::IsOrientation(mode.dmDisplayOrientation)) {
        return DISP_CHANGE_BADMODE;
    }
    return handheld::AskToTurn(static_cast<int>(mode.dmDisplayOrientation));
}

// Never the PC's own function: it takes a longer record, and the device's bit for the orientation is another
// field there.
extern "C" LONG WINAPI ce_ChangeDisplaySettingsEx(const wchar_t* device, DEVMODEW* mode, HWND, DWORD flags,
                                                  void*)
{
    if (device || !mode || mode->dmSize != sizeof *mode) {
        return DISP_CHANGE_BADPARAM;
    }
    if (mode->dmFields != DM_DISPLAYORIENTATION && mode->dmFields != DM_DISPLAYQUERYORIENTATION) {
        return DISP_CHANGE_BADMODE;
    }
    switch (flags) {
    case CDS_TEST:
        return Answer(*mode);
    case 0:
        return Turn(*mode);
    default:
        return DISP_CHANGE_BADFLAGS;
    }
}
