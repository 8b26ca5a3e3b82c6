// Buttons that close: the program in front, all of them, all but that one.
// profiles: pocketpc smartphone
#include "rig/Controls.h"
#include "tests/e2e/keys/ButtonSession.h"

using namespace rig;

static constexpr wchar_t closeCurrent[] = L"193 7*1";
static constexpr wchar_t closeAll[] = L"193 8*1";
static constexpr wchar_t closeOthers[] = L"193 9*1";
static constexpr wchar_t forbidden[] = L"It's forbidden to close this window";

class ButtonClosingTest : public ButtonSession
{
  protected:
    Actor actor;

    HWND Make(const wchar_t* title, actor::Closing closing = actor::Closing::Close,
              HWND owner = nullptr) const
    {
        const HWND window = actor.Make({.title = title, .owner = owner, .closing = closing});
        EXPECT_TRUE(window);
        return window;
    }
    static bool Gone(HWND window)
    {
        return WaitFor([=] { return !IsWindow(window); });
    }
};

TEST_F(ButtonClosingTest, TheProgramInFrontIsClosed)
{
    const HWND other = Make(L"Other", actor::Closing::Ignore);
    const HWND front = Make(L"Front");
    ASSERT_TRUE(Raise(front));
    Button(closeCurrent);
    EXPECT_TRUE(Gone(front));
    EXPECT_EQ(0, CloseCount(other));
    Send(main, WM_NULL);
    EXPECT_FALSE(program->Notice());
}

TEST_F(ButtonClosingTest, TheOwnerOfTheBoxInFrontIsClosed)
{
    const HWND front = Make(L"Front", actor::Closing::Ignore);
    const HWND box = Make(L"Box", actor::Closing::Ignore, front);
    ASSERT_TRUE(Raise(box));
    Button(closeCurrent);
    EXPECT_TRUE(WaitFor([=] { return CloseCount(front) == 1; }));
    EXPECT_EQ(0, CloseCount(box));
}

TEST_F(ButtonClosingTest, TheHomeScreenIsNot)
{
    const HWND home = FindTopWindow({.className = L"DesktopExplorerWindow"});
    ASSERT_TRUE(BringToFront(home));
    Button(closeCurrent);
    ExpectNotice(forbidden);
    EXPECT_TRUE(IsWindow(home));
}

TEST_F(ButtonClosingTest, NorIsTheProgramItself)
{
    Button(closeCurrent);
    ExpectNotice(forbidden);
    ExpectPage(TasksPage);
}

TEST_F(ButtonClosingTest, NorIsItsDialog)
{
    const HWND dialog = OpenReport();
    ASSERT_TRUE(dialog);
    ASSERT_TRUE(InFront(dialog));
    Button(closeCurrent);
    ExpectNotice(forbidden);
    EXPECT_TRUE(IsWindow(dialog));
}

TEST_F(ButtonClosingTest, AProgramThatHangsIsWaitedFor)
{
    const HWND slow = actor.Make({.title = L"Slow", .closing = actor::Closing::Delay, .delay = 2000});
    ASSERT_TRUE(Raise(slow));
    Button(closeCurrent);
    Button(L"194 4*4"); // is taken behind it
    EXPECT_TRUE(program->WaitForPage(ProcsPage));
    EXPECT_FALSE(IsWindow(slow)) << "it was not waited for";
}

TEST_F(ButtonClosingTest, AllAreClosed)
{
    const HWND first = Make(L"First");
    const HWND second = Make(L"Second");
    ASSERT_TRUE(Raise(second));
    Button(closeAll);
    EXPECT_TRUE(Gone(first));
    EXPECT_TRUE(Gone(second));
    ExpectNotice(L"Done");
    EXPECT_TRUE(WaitFor([&] { return ListCount(program->List(TasksPage)) == 2; }));
    EXPECT_TRUE(program->IsRunning());
}

TEST_F(ButtonClosingTest, AllButTheProgramInFrontAreClosed)
{
    const HWND first = Make(L"First");
    const HWND front = Make(L"Front");
    const HWND last = Make(L"Last");
    ASSERT_TRUE(Raise(front));
    Button(closeOthers);
    EXPECT_TRUE(Gone(first));
    EXPECT_TRUE(Gone(last));
    ExpectNotice(L"Done");
    EXPECT_EQ(0, CloseCount(front));
    EXPECT_TRUE(IsWindow(front));
    EXPECT_TRUE(program->IsRunning());
    EXPECT_TRUE(WaitFor([&] { return ListCount(program->List(TasksPage)) == 3; }));
}

TEST_F(ButtonClosingTest, AllButTheOwnerOfTheBoxInFrontAreClosed)
{
    const HWND other = Make(L"Other");
    const HWND front = Make(L"Front");
    const HWND box = Make(L"Box", actor::Closing::Close, front);
    ASSERT_TRUE(Raise(box));
    Button(closeOthers);
    EXPECT_TRUE(Gone(other));
    ExpectNotice(L"Done");
    EXPECT_EQ(0, CloseCount(front));
    EXPECT_TRUE(IsWindow(box));
}

TEST_F(ButtonClosingTest, WithTheProgramInFrontAllOthersAreClosed)
{
    const HWND first = Make(L"First");
    const HWND second = Make(L"Second");
    ASSERT_TRUE(ComeToFront());
    Button(closeOthers);
    EXPECT_TRUE(Gone(first));
    EXPECT_TRUE(Gone(second));
    ExpectNotice(L"Done");
}

TEST_F(ButtonClosingTest, OnTheLauncherTheNoticeComesToo)
{
    const HWND other = Make(L"Other");
    ShowPage(LauncherPage, ShowStartCommand);
    Button(closeOthers);
    EXPECT_TRUE(Gone(other));
    ExpectNotice(L"Done");
    EXPECT_EQ(LauncherPage, program->VisiblePage());
}
