// Locked keys, and how they are unlocked.
// profiles: pocketpc smartphone
// device's executable: never
#include "rig/Actor.h"
#include "rig/MenuTwin.h"
#include "rig/Picture.h"
#include "tests/e2e/HandheldKeys.h"
#include "tests/e2e/LockedKeys.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

class LockScreenTest : public testing::Test
{
  protected:
    const HandheldKeys keys;
    const Actor actor;
    HWND front = nullptr;

    void SetUp() override
    {
        front = actor.Make({.title = L"In front", .place = ScreenRect()});
        ASSERT_TRUE(Raise(front));
    }
    void TearDown() override
    {
        if (LockScreen()) {
            UnlockKeys();
        }
        EXPECT_TRUE(IsOpen());
    }

    HWND Lock() const
    {
        keys.Lock();
        return WaitForLockScreen();
    }
    static bool IsOpen()
    {
        return WaitFor([] { return !LockScreen(); });
    }
    // A key arrives, and no other has before.
    void ExpectNextKey(int count) const
    {
        PressKey('K');
        EXPECT_TRUE(WaitFor([=, this] { return KeyCount(front) > count; }));
        EXPECT_EQ(KeyCount(front), count + 1);
    }
};

TEST_F(LockScreenTest, LockedKeysReachNoProgramUntilTheyAreUnlocked)
{
    const int count = KeyCount(front);
    const HWND screen = Lock();
    ASSERT_TRUE(screen);
    RECT place = {};
    GetWindowRect(screen, &place);
    const RECT whole = ScreenRect();
    EXPECT_TRUE(EqualRect(&place, &whole));
    for (WORD key :
         {WORD{'K'}, WORD{VK_RETURN}, WORD{VK_ESCAPE}, WORD{VK_F2}, WORD{VK_F5}, WORD{VK_MULTIPLY}}) {
        PressKey(key);
    }
    EXPECT_FALSE(keys.IsDown(firstButton));
    EXPECT_TRUE(LockScreen());
    PressKey(VK_F1);
    PressKey(VK_ESCAPE); // takes the question back
    ConfirmUnlocking();
    EXPECT_TRUE(LockScreen());
    UnlockKeys();
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(GetForegroundWindow(), front);
    ExpectNextKey(count);
    EXPECT_FALSE(FindTopWindow({.className = L"Notepad"}));
}

TEST_F(LockScreenTest, ItCoversTheScreenAndShowsItAgain)
{
    RECT place = ScreenRect();
    place.top = Scaled(26); // below the clock
    const auto look = [&] { return Picture::OfScreen(place); };
    ParkStylus();
    Picture::OfSettledScreen();
    const Picture before = look();
    ASSERT_TRUE(Lock());
    EXPECT_TRUE(WaitFor([&] { return look() != before; }));
    Picture::OfSettledScreen();
    const Picture locked = look();
    PressKey(VK_F1);
    EXPECT_TRUE(WaitFor([&] { return look() != locked; })) << "the question";
    ConfirmUnlocking();
    EXPECT_TRUE(IsOpen());
    EXPECT_TRUE(WaitFor([&] { return look() == before; }));
}

TEST_F(LockScreenTest, AProgramThatComesForwardStaysBelow)
{
    const Actor other;
    ASSERT_TRUE(Lock());
    const HWND window = other.Make({.title = L"Later"});
    SetForegroundWindow(window);
    EXPECT_TRUE(WaitFor([=] {
        const std::vector<HWND> windows = TopWindows();
        return std::find(windows.begin(), windows.end(), LockScreen()) <
               std::find(windows.begin(), windows.end(), window);
    }));
}

TEST_F(LockScreenTest, TapsUnlockWhereThereIsATouchScreen)
{
    const RECT whole = ScreenRect();
    const POINT softKey = {Scaled(40), whole.bottom - Scaled(13)};
    const POINT middle = {whole.right / 2, whole.bottom / 2};
    ASSERT_TRUE(Lock());
    Tap(middle);
    Tap({Scaled(12), Scaled(13)}); // the flag
    Send(LockScreen(), WM_NULL);
    EXPECT_TRUE(LockScreen());
    EXPECT_FALSE(OpenMenu());
    Tap(softKey);
    Tap(middle);
    if (IsSmartphoneSession()) {
        Send(LockScreen(), WM_NULL);
        EXPECT_TRUE(LockScreen()) << "only its star key confirms";
        ConfirmUnlocking();
    }
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(GetForegroundWindow(), front);
}

TEST_F(LockScreenTest, WhatIsHeldWhenTheLockComesIsReleased)
{
    const HWND own =
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    ASSERT_TRUE(keys.Claim(own, 1, firstButton, MOD_WIN | keyUpToo));
    KeyDown(VK_F5);
    ASSERT_TRUE(Lock());
    EXPECT_TRUE(keys.IsDown(firstButton));
    KeyUp(VK_F5);
    EXPECT_FALSE(keys.IsDown(firstButton));
    EXPECT_TRUE(WaitFor([=] {
        MSG message;
        return PeekMessageW(&message, own, WM_HOTKEY, WM_HOTKEY, PM_REMOVE) &&
               message.lParam == MAKELPARAM(0x1008, 0xC1);
    }));
    EXPECT_TRUE(keys.Release(own, 1));
    DestroyWindow(own);
}
