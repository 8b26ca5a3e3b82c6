// The states of the hardware keys dialog, and the picker that it opens.
#include "tools/tour/Tour.h"

#include "resources/ids.h"
#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/Picture.h"
#include "rig/WaitFor.h"

using namespace rig;

static int ItemCount(HWND dropDown)
{
    return static_cast<int>(Send(dropDown, CB_GETCOUNT));
}

void Tour::ShowKeys()
{
    program.Command(CMD_HARDWARE_KEYS);
    const HWND dialog = program.WaitForDialog();
    const HWND choice =
        GetDlgItem(dialog, IDC_PRESS_ACTION); // on a Smartphone the only one, of the same number
    Require(choice != nullptr, "the hardware keys dialog does not open");
    Require(WaitFor([=] { return ItemCount(choice) == 13; }), "the hardware keys dialog lists no actions");
    Keep("hardware-keys");

    const RECT place = ScreenRectOf(choice);
    Tap({place.right - 5, (place.top + place.bottom) / 2});
    Require(WaitFor([=] { return Send(choice, CB_GETDROPPEDSTATE) != 0; }), "a tap opens no list of actions");
    Keep("hardware-keys-actions");
    PressKey(VK_ESCAPE);
    Require(WaitFor([=] { return Send(choice, CB_GETDROPPEDSTATE) == 0; }), "the list of actions stays open");

    PressKey(VK_HOME);
    PressKey(VK_DOWN, 2); // "Start application"
    HWND picker = nullptr;
    Require(WaitFor([&] {
                picker = program.Dialog();
                return picker != dialog && picker != nullptr && ListCount(GetDlgItem(picker, IDC_LIST)) > 0;
            }),
            "the picker does not open");
    Keep("select-application");
    PressKey(VK_F1);
    Require(WaitFor([=] { return !IsWindow(picker) && ItemCount(choice) == 14; }),
            "the picked application is not shown");
    Keep("hardware-keys-application");
    PressKey(VK_F2);
    Require(WaitFor([&] { return program.Dialog() == nullptr; }), "the hardware keys dialog stays open");
}
