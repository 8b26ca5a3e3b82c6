// The application's way from a hardware key to what it does: the keys it claims, and press against hold.
#include "app/CApp.h"
#include "keys/ShellKeys.h"

static constexpr UINT holdMs = 600;      // a button held this long is held, not pressed
static constexpr UINT homeHoldMs = 1500; // the same for the Home key
static constexpr DWORD homeReleaseMs = 500;

static bool IsDown(int32_t vk)
{
    return GetAsyncKeyState(vk) != 0;
}

bool CApp::WantsHomeKey() const
{
    return homeKey.command != KeyActionLeave && platform == Platform::Smartphone;
}

void CApp::ClaimKeys()
{
    if (WantsHomeKey()) {
        CaptureHomeKey(mainWindow, L"CApp::OnCreate");
    }
    // A Smartphone has no such buttons: started by one all the same, it does nothing, on purpose.
    if (platform == Platform::PocketPC && keyPress.vk != 0) {
        AwaitRelease();
    }
}

void CApp::UnclaimKeys()
{
    if (WantsHomeKey()) {
        ReleaseHomeKey(mainWindow);
    }
}

void CApp::PostAction(WPARAM pressLength) const
{
    PostMessageW(mainWindow, keyActionMessage, pressLength, 0);
}

// A timer that runs for the press before goes on running: then the new one is performed twice.
void CApp::AwaitRelease()
{
    if (IsDown(keyPress.vk)) {
        SetTimer(mainWindow, HoldTimer, holdMs, nullptr);
    } else {
        PostAction(KeyPressed);
    }
}

void CApp::OnHoldTimer()
{
    PostAction(IsDown(keyPress.vk) ? KeyHeld : KeyPressed);
    KillTimer(mainWindow, HoldTimer);
}

void CApp::OnHomeKey(bool up)
{
    if (!up) {
        SetTimer(mainWindow, HomeTimer, homeHoldMs, nullptr);
        return;
    }
    KillTimer(mainWindow, HomeTimer);
    if (!homeHeld) {
        return;
    }
    homeHeld = false;
    if (platform == Platform::Smartphone) {
        Sleep(homeReleaseMs); // the shell's own answer to the key comes first
        keyPress.pressAction = static_cast<int32_t>(homeKey.command);
        keyPress.pressApplication = homeKey.file;
        PostAction(KeyPressed);
    }
}

void CApp::OnHomeTimer()
{
    if (IsDown(VK_LWIN)) {
        homeHeld = true;
    }
    KillTimer(mainWindow, HomeTimer);
}
