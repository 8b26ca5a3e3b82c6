// The first start by a button: the program stays in the background until it is called.
// profiles: pocketpc smartphone
// device's executable: smartphone
#include "rig/Picture.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

// A button whose actions do nothing.
static constexpr wchar_t idleButton[] = L"193 1*1";

class StartMinimisedTest : public ShellSession
{
  protected:
    HWND home = nullptr;

    void SetUp() override
    {
        home = FindTopWindow({.className = L"DesktopExplorerWindow"});
        ASSERT_TRUE(home);
        ASSERT_TRUE(BringToFront(home));
    }

    // It has come so far that it answers, so it has been hidden by now.
    void ExpectInBackground()
    {
        ASSERT_TRUE(main);
        ASSERT_TRUE(WaitFor([&] { return program->VisiblePage() == TasksPage; }));
        ASSERT_TRUE(WaitFor([&] { return !BarOf(main); }));
        Send(main, WM_NULL);
        EXPECT_TRUE(InFront(home));
    }
};

TEST_F(StartMinimisedTest, ItStaysBehindTheHomeScreen)
{
    const RECT area = {0, Scaled(26), ScreenRect().right, ScreenRect().bottom};
    const Picture before = (Picture::OfSettledScreen(), Picture::OfScreen(area));
    Launch(idleButton);
    ExpectInBackground();
    EXPECT_TRUE(WaitFor([&] { return Picture::OfScreen(area) == before; })) << "the screen has changed";
    EXPECT_TRUE(program->IsRunning());
}

TEST_F(StartMinimisedTest, ANormalStartBringsItForwardReadyForKeys)
{
    Launch(idleButton);
    ExpectInBackground();
    const ChildProcess second(ProgramFolder() + L"\\Quorvane.exe", L"");
    EXPECT_EQ(0u, second.ExitCode(patience));
    ASSERT_TRUE(InFront(main));
    EXPECT_TRUE(WaitFor([&] { return BarOf(main); })) << "it has no soft keys";
    ExpectKeysReachThePage(TasksPage);
}

TEST_F(StartMinimisedTest, AnotherButtonLeavesItInTheBackground)
{
    Launch(idleButton);
    ExpectInBackground();
    const ChildProcess second(ProgramFolder() + L"\\Quorvane.exe", idleButton);
    EXPECT_EQ(0u, second.ExitCode(patience));
    ExpectInBackground();
    int mains = 0;
    for (HWND window : TopWindows()) {
        mains += ClassOf(window) == L"QuorvaneApp" ? 1 : 0;
    }
    EXPECT_EQ(1, mains);
}

TEST_F(StartMinimisedTest, ItCanBeClosed)
{
    Launch(idleButton);
    ExpectInBackground();
    PostMessageW(main, WM_CLOSE, 0, 0);
    ExpectEnd();
}

TEST_F(StartMinimisedTest, AMalformedCommandLineIsANormalStart)
{
    for (const wchar_t* line : {L"193", L"193 3", L"193*3", L"x 3*9", L"0 3*9", L"-"}) {
        Launch(line);
        ASSERT_TRUE(main) << line;
        EXPECT_TRUE(InFront(main)) << testing::PrintToString(std::wstring(line));
        ExpectKeysReachThePage(TasksPage);
        PostMessageW(main, WM_CLOSE, 0, 0);
        ExpectEnd();
        ASSERT_TRUE(BringToFront(home));
    }
}
