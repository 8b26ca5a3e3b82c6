// Keys: what the handheld's own keys do.
#include "platform/pc/handheld/Keys.h"

#include "platform/pc/common/ButtonCommand.h"
#include "platform/pc/common/FirstButtons.h"
#include "platform/pc/common/StartFile.h"
#include "platform/pc/handheld/Front.h"

using handheld::homeKey;

// Where the handheld remembers that it has given its buttons commands.
static constexpr wchar_t filledButtonsKey[] = L"Software\\Quorvane Handheld\\Filled buttons";

static std::vector<UINT> KeysOfTheShell()
{
    std::vector<UINT> keys = {homeKey, handheld::endKey};
    for (int i = 0; i < handheld::buttonCount; ++i) {
        keys.push_back(static_cast<UINT>(handheld::firstButton + i));
    }
    return keys;
}

static void StartByButton(int button)
{
    const handheld::ButtonStart start = handheld::SplitButtonCommand(handheld::ButtonCommand(button));
    HANDLE process = nullptr;
    if (!start.file.empty() && handheld::StartFile({start.file, start.arguments}, process) && process) {
        AllowSetForegroundWindow(GetProcessId(process));
        CloseHandle(process);
    }
}

void FillButtons()
{
    handheld::FillButtonsOnce(filledButtonsKey);
}

Keys::Keys(HWND controlWindow, HWND homeScreen)
    : control(controlWindow), today(homeScreen), claims(KeysOfTheShell()), hook(controlWindow),
      lockScreen([this] { hook.SetLocked(false); })
{}

bool Keys::Start()
{
    return hook.Start();
}

bool Keys::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result)
{
    result = 0;
    switch (message) {
    case WM_COPYDATA: {
        const auto& data = *reinterpret_cast<const COPYDATASTRUCT*>(lParam);
        if (data.dwData != handheld::keyRequest || data.cbData != sizeof(handheld::KeyRequest)) {
            return false;
        }
        result = static_cast<LRESULT>(claims.Answer(*static_cast<const handheld::KeyRequest*>(data.lpData)));
        return true;
    }
    case handheld::WM_HANDHELD_KEY:
        lParam ? Press(static_cast<int>(wParam)) : Release(static_cast<int>(wParam));
        return true;
    case handheld::WM_KEY_WHILE_LOCKED:
        lockScreen.PressKey(wParam, lParam != 0);
        return true;
    case handheld::WM_LOCK_KEYS:
        Lock();
        return true;
    default:
        return false;
    }
}

void Keys::Press(int key)
{
    const bool hadMenu = EndMenuInFront();
    if (key == handheld::listKey && hadMenu) {
        PostMessageW(control, handheld::WM_HANDHELD_KEY, static_cast<WPARAM>(key), TRUE); // behind the menu
    } else if (key == handheld::listKey) {
        keyList.Toggle();
    } else if (claims.Press(static_cast<UINT>(key))) {
        return;
    } else if (key == homeKey || key == handheld::endKey) {
        SetForegroundWindow(today);
    } else {
        StartByButton(key);
    }
}

void Keys::Release(int key)
{
    if (key != handheld::listKey) {
        claims.Release(static_cast<UINT>(key));
    }
}

void Keys::Lock()
{
    EndMenuInFront();
    hook.SetLocked(true); // first: nothing passes once the screen is seen
    if (!lockScreen.Open()) {
        hook.SetLocked(false);
    }
}
