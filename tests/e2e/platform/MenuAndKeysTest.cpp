// The handheld's own keys while a menu is open, its Start menu or another program's.
// device's executable: never
#include "rig/Actor.h"
#include "tests/e2e/HandheldKeys.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

class MenuAndKeysTest : public testing::Test
{
  protected:
    const HandheldKeys keys;
    const Actor actor;
    const ButtonNote note;
    const ButtonDefault button{firstButton};
    HWND front = nullptr;

    void SetUp() override
    {
        button.Set(note.Command(L"pressed"));
        front = actor.Make({.title = L"In front", .place = {0, 200, 100, 260}});
        ASSERT_TRUE(Raise(front));
    }
    void TearDown() override
    {
        if (OpenMenu()) { // the next test would meet it
            Tap({ScreenRect().right - 5, ScreenRect().bottom - 5});
        }
    }

    static void OpenStartMenu()
    {
        Tap({Scaled(12), Scaled(13)}); // the flag
        ASSERT_TRUE(WaitFor([] { return OpenMenu(); }));
    }
    static bool IsClosed()
    {
        return WaitFor([] { return !OpenMenu(); });
    }
};

TEST_F(MenuAndKeysTest, AButtonClosesTheStartMenuAndStartsItsProgram)
{
    ASSERT_NO_FATAL_FAILURE(OpenStartMenu());
    PressKey(VK_F5);
    EXPECT_TRUE(IsClosed());
    EXPECT_TRUE(note.Becomes("pressed;"));
}

TEST_F(MenuAndKeysTest, AButtonClosesTheMenuOfTheProgramInFront)
{
    const ChildProcess notepad(L"C:\\windows\\system32\\notepad.exe", L"");
    const HWND window = WaitForTopWindow({.className = L"Notepad"});
    ASSERT_TRUE(window);
    ASSERT_TRUE(Raise(window));
    PressChord({VK_MENU, 'F'});
    ASSERT_TRUE(WaitFor([] { return OpenMenu(); }));
    PressKey(VK_F5);
    EXPECT_TRUE(IsClosed());
    EXPECT_TRUE(note.Becomes("pressed;"));
    PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_TRUE(WaitFor([=] { return !IsWindow(window); }));
}

TEST_F(MenuAndKeysTest, TheListOfTheKeysTakesTheMenusPlace)
{
    ASSERT_NO_FATAL_FAILURE(OpenStartMenu());
    PressKey(VK_F12);
    EXPECT_TRUE(IsClosed());
    const HWND list = WaitForTopWindow({.className = L"QuorvaneHandheldKeys"});
    EXPECT_TRUE(WaitFor([=] { return list && GetForegroundWindow() == list; }));
    PressKey(VK_F12);
    EXPECT_TRUE(WaitFor([this] { return GetForegroundWindow() == front; }));
}

TEST_F(MenuAndKeysTest, TheLockClosesTheMenuAndTheProgramHasTheKeysAgain)
{
    ASSERT_NO_FATAL_FAILURE(OpenStartMenu());
    keys.Lock();
    ASSERT_TRUE(WaitForTopWindow({.className = L"QuorvaneHandheldLock"}));
    EXPECT_TRUE(IsClosed());
    PressKey(VK_F1);
    PressKey(VK_RETURN);
    EXPECT_TRUE(WaitFor([] { return !FindTopWindow({.className = L"QuorvaneHandheldLock"}); }));
    EXPECT_TRUE(WaitFor([this] { return GetForegroundWindow() == front; }));
}
