// A report above the Windows list: what closes both, what closes one, and what ends the program.
#include "tests/e2e/ShellSession.h"

using namespace rig;

class ShellNestedTest : public ShellSession
{
  protected:
    HWND list = nullptr;   // the Windows list
    HWND report = nullptr; // the report above it

    void SetUp() override
    {
        ASSERT_NO_FATAL_FAILURE(ShellSession::SetUp());
        list = OpenWindowsList();
        ASSERT_TRUE(list);
        PostMessageW(list, WM_COMMAND, WindowInfoCommand, 0);
        report = WaitFor([&] {
            const HWND front = program->Dialog();
            return front != list ? front : nullptr;
        });
        ASSERT_TRUE(report);
        ASSERT_TRUE(InFront(report));
    }

    // The report never outlives the list below it.
    void ExpectBothClosedNewestFirst() const
    {
        EXPECT_TRUE(WaitFor([&] {
            const bool listThere = IsWindow(list) != FALSE;
            const bool reportThere = IsWindow(report) != FALSE;
            EXPECT_TRUE(listThere || !reportThere) << "the older dialog was closed first";
            return !listThere && !reportThere;
        })) << "a dialog stays open";
    }
};

TEST_F(ShellNestedTest, TheReportClosesBackToTheList)
{
    PressKey(VK_RETURN);
    EXPECT_TRUE(WaitFor([&] { return !IsWindow(report); }));
    ASSERT_TRUE(InFront(list));
    EXPECT_TRUE(IsWindow(list));
    PressKey(VK_F1);
    EXPECT_TRUE(WaitFor([&] { return !IsWindow(list); }));
    EXPECT_TRUE(IsWindowEnabled(main));
    ExpectKeysReachThePage(TasksPage);
}

TEST_F(ShellNestedTest, APostedCloseClosesBothDialogsAndASecondOneEndsTheProgram)
{
    PostMessageW(main, WM_CLOSE, 0, 0);
    ExpectBothClosedNewestFirst();
    ASSERT_TRUE(IsWindow(main));
    EXPECT_TRUE(WaitFor([&] { return IsWindowEnabled(main); }));
    ExpectKeysReachThePage(TasksPage);
    PostMessageW(main, WM_CLOSE, 0, 0);
    ExpectEnd();
}

TEST_F(ShellNestedTest, ASentCloseEndsTheProgram)
{
    Send(main, WM_CLOSE);
    ExpectEnd();
}

TEST_F(ShellNestedTest, TheExitCommandEndsTheProgram)
{
    program->Command(ExitCommand);
    ExpectEnd();
}

TEST_F(ShellNestedTest, ShowingAPageClosesTheDialogsNewestFirst)
{
    program->Command(ShowSysInfoCommand);
    ExpectBothClosedNewestFirst();
    EXPECT_TRUE(program->WaitForPage(SysInfoPage));
    EXPECT_TRUE(IsWindowEnabled(main));
    ExpectKeysReachThePage(SysInfoPage);
}

TEST_F(ShellNestedTest, ShowingThePageThatIsShownClosesTheDialogsToo)
{
    program->Command(ShowTasksCommand);
    ExpectBothClosedNewestFirst();
    ExpectKeysReachThePage(TasksPage);
    EXPECT_TRUE(BarOf(main));
}

TEST_F(ShellNestedTest, ShowingAPageClosesASingleDialog)
{
    PressKey(VK_RETURN);
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(report); }));
    ASSERT_TRUE(InFront(list));
    program->Command(ShowProcsCommand);
    EXPECT_TRUE(WaitFor([&] { return !IsWindow(list); }));
    EXPECT_TRUE(program->WaitForPage(ProcsPage));
    ExpectKeysReachThePage(ProcsPage);
}

TEST_F(ShellNestedTest, AnotherStartBringsTheNewestDialogForward)
{
    const HWND home = FindTopWindow({.className = L"DesktopExplorerWindow"});
    ASSERT_TRUE(BringToFront(home));
    const ChildProcess second(ProgramFolder() + L"\\Quorvane.exe", L"");
    EXPECT_EQ(0u, second.ExitCode(patience));
    EXPECT_TRUE(InFront(report));
    EXPECT_FALSE(IsWindowEnabled(main));
    PressKey(VK_RETURN);
    EXPECT_TRUE(WaitFor([&] { return !IsWindow(report); }));
    // The keyboard stays with what fills the screen.
    ASSERT_TRUE(InFront(list));
    PressKey(VK_F1);
    EXPECT_TRUE(WaitFor([&] { return !IsWindow(list); }));
    ExpectKeysReachThePage(TasksPage);
}
