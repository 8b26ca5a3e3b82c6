// Asking the handheld's shell to turn the screen.
#include "platform/pc/common/TurnRequest.h"

#include "platform/pc/common/ControlWindow.h"

namespace handheld {

static constexpr UINT longestTurn = 10000; // ms; the system tells every window, also those that hang

// Messages are let in meanwhile: the caller's own windows are told too.
LONG AskToTurn(int orientation)
{
    DWORD_PTR answer = 0;
    if (!SendMessageTimeoutW(FindControl(), WM_TURN_SCREEN, static_cast<WPARAM>(orientation), 0, SMTO_NORMAL,
                             longestTurn, &answer) ||
        answer == 0) {
        return DISP_CHANGE_FAILED;
    }
    return static_cast<LRESULT>(answer) == turned ? DISP_CHANGE_SUCCESSFUL : static_cast<LONG>(answer);
}

} // namespace handheld
