// The refresh by time: every 7.5 seconds while the program is active, and at once when it becomes active.
#include "rig/Actor.h"
#include "rig/Controls.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;
using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

static constexpr milliseconds period{7500};
// What the machine may add to a time that the program keeps.
static constexpr milliseconds slack{2500};

static milliseconds Since(Clock::time_point start)
{
    return std::chrono::duration_cast<milliseconds>(Clock::now() - start);
}

class ShellRefreshTest : public ShellSession
{
  protected:
    Actor actor;

    int Rows() const { return ListCount(program->List(TasksPage)); }

    // A task comes up, or goes, without taking the front; no message reaches the program.
    HWND MakeSilently() const { return actor.Make({.title = L"Silent", .style = WS_POPUP}); }
    void ShowSilently(HWND window) const
    {
        ShowWindowAsync(window, SW_SHOWNA);
        ASSERT_TRUE(WaitFor([=] { return IsWindowVisible(window); }));
    }
};

TEST_F(ShellRefreshTest, WhileActiveEverySevenAndAHalfSeconds)
{
    const HWND window = MakeSilently();
    const int before = SettledCount();
    const HWND home = FindTopWindow({.className = L"DesktopExplorerWindow"});
    ASSERT_TRUE(home);
    ASSERT_TRUE(BringToFront(home));
    ASSERT_TRUE(WaitFor([&] { return !FocusOf(main); }))
        << "it has not noticed that it is not active any more";
    const auto beforeActivation = Clock::now();
    ASSERT_TRUE(ComeToFront());
    const auto activated = Clock::now();
    // The refresh of the activation itself is over once the program answers.
    Send(main, WM_NULL);
    ShowSilently(window);
    ASSERT_EQ(before, Rows()) << "it was refreshed already";
    EXPECT_TRUE(WaitFor([&] { return Rows() == before + 1; }, period + slack)) << "it was not refreshed";
    EXPECT_GE(Since(beforeActivation), period - milliseconds(100));
    EXPECT_LE(Since(activated), period + slack);
    EXPECT_EQ(main, GetForegroundWindow());

    // And once more; a timer that ran out only once would not do.
    const auto second = Clock::now();
    actor.Vanish(window);
    ASSERT_EQ(before + 1, Rows());
    EXPECT_TRUE(WaitFor([&] { return Rows() == before; }, period + slack)) << "it was not refreshed again";
    EXPECT_GE(Since(second), milliseconds(5000));
}

TEST_F(ShellRefreshTest, NotWhileAnotherProgramIsActiveButAtOnceAfterwards)
{
    const HWND silent = MakeSilently();
    const int before = SettledCount();
    const HWND home = FindTopWindow({.className = L"DesktopExplorerWindow"});
    ASSERT_TRUE(BringToFront(home));
    ASSERT_TRUE(WaitFor([&] { return GetForegroundWindow() == home; }));
    Send(main, WM_NULL);
    const auto inactive = Clock::now();
    ShowSilently(silent);
    WaitFor([&] { return Rows() != before; }, period + milliseconds(1000));
    EXPECT_EQ(before, Rows()) << "it was refreshed after " << Since(inactive).count() << " ms";
    ASSERT_EQ(home, GetForegroundWindow());

    ASSERT_TRUE(ComeToFront());
    EXPECT_TRUE(WaitFor([&] { return Rows() == before + 1; }, milliseconds(3000)));
}

TEST_F(ShellRefreshTest, ShowingThePageAgainRefreshesIt)
{
    const HWND silent = MakeSilently();
    const int before = SettledCount();
    program->Command(ShowProcsCommand);
    ASSERT_TRUE(program->WaitForPage(ProcsPage));
    ShowSilently(silent);
    EXPECT_EQ(before, Rows());
    PressKey(VK_RIGHT);
    ASSERT_TRUE(program->WaitForPage(TasksPage));
    EXPECT_TRUE(WaitFor([&] { return Rows() == before + 1; }, milliseconds(3000)));
}
