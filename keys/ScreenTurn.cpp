// Turning the screen.
#include "keys/ScreenTurn.h"

#include "platform/ce.h"

void TurnScreen()
{
    DEVMODEW mode = {};
    mode.dmSize = sizeof mode;
    mode.dmFields = DM_DISPLAYORIENTATION;
    ChangeDisplaySettingsEx(nullptr, &mode, nullptr, CDS_TEST, nullptr);
    mode.dmDisplayOrientation = mode.dmDisplayOrientation == DMDO_0 ? DMDO_270 : DMDO_0;
    ChangeDisplaySettingsEx(nullptr, &mode, nullptr, 0, nullptr);
}
