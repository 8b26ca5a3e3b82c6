// How the handheld is held, and turning it.
#include "rig/Orientation.h"

#include "platform/pc/common/ControlWindow.h"
#include "platform/pc/common/TurnRequest.h"
#include "rig/WaitFor.h"

namespace rig {

bool TurnScreen(int orientation)
{
    const HWND control = FindWindowW(handheld::controlClass, nullptr);
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(control, handheld::WM_TURN_SCREEN, static_cast<WPARAM>(orientation), 0, SMTO_NORMAL,
                        static_cast<UINT>(patience.count()), &answer);
    return answer == handheld::turned;
}

} // namespace rig
