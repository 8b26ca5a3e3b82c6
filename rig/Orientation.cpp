// How the handheld is held, and turning it.
#include "rig/Orientation.h"

#include "platform/pc/common/ControlWindow.h"
#include "platform/pc/common/TurnRequest.h"
#include "rig/Desktop.h"

namespace rig {

bool TurnScreen(int orientation)
{
    const HWND control = FindWindowW(handheld::controlClass, nullptr);
    return Send(control, handheld::WM_TURN_SCREEN, static_cast<WPARAM>(orientation)) == handheld::turned;
}

} // namespace rig
