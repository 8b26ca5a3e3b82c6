// A button that the running program is handed over: starting, showing pages, and presses that come thick and
// fast.
// profiles: pocketpc smartphone
#include "tests/e2e/keys/ButtonSession.h"

using namespace rig;

class ButtonHandOverTest : public ButtonSession
{};

TEST_F(ButtonHandOverTest, EachPageIsShown)
{
    const std::pair<const wchar_t*, int> buttons[] = {{L"193 4*9", ProcsPage},
                                                      {L"193 5*9", SysInfoPage},
                                                      {L"193 6*9", LauncherPage},
                                                      {L"193 3*9", TasksPage}};
    for (const auto& [commandLine, page] : buttons) {
        Button(commandLine);
        ExpectPage(page);
    }
}

TEST_F(ButtonHandOverTest, AHiddenProgramComesForward)
{
    program->Command(HideCommand);
    ASSERT_TRUE(WaitFor([&] { return !BarOf(main); }));
    Button(L"193 3*9");
    ExpectPage(TasksPage);
    program->Command(HideCommand);
    ASSERT_TRUE(WaitFor([&] { return !BarOf(main); }));
    Button(L"193 4*9");
    ExpectPage(ProcsPage);
}

TEST_F(ButtonHandOverTest, AProgramBehindAnotherComesForward)
{
    const Actor actor;
    const HWND other = actor.Make({.title = L"Other"});
    ASSERT_TRUE(Raise(other));
    Button(L"193 5*9");
    ExpectPage(SysInfoPage);
}

TEST_F(ButtonHandOverTest, AnOpenDialogEnds)
{
    const HWND dialog = OpenReport();
    ASSERT_TRUE(dialog);
    Button(L"193 4*9");
    EXPECT_TRUE(WaitFor([=] { return !IsWindow(dialog); }));
    ExpectPage(ProcsPage);
}

TEST_F(ButtonHandOverTest, AnOpenMenuOutlivesIt)
{
    ASSERT_TRUE(PressMenuKey());
    Button(L"193 4*9");
    EXPECT_TRUE(program->WaitForPage(ProcsPage));
    for (int tries = 0; OpenMenu() && tries < 5; tries++) {
        PressKey(VK_ESCAPE);
        WaitFor([] { return !OpenMenu(); }, std::chrono::milliseconds(500));
    }
    EXPECT_FALSE(OpenMenu());
    ASSERT_TRUE(ComeToFront());
    ExpectPage(ProcsPage);
}

TEST_F(ButtonHandOverTest, AnOpenBoxOutlivesIt)
{
    program->Command(AboutCommand);
    const HWND box = program->WaitForDialog();
    ASSERT_TRUE(box);
    Button(L"193 4*9");
    EXPECT_TRUE(program->WaitForPage(ProcsPage));
    ASSERT_TRUE(IsWindow(box));
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_TRUE(WaitFor([=] { return !IsWindow(box); }));
    ASSERT_TRUE(ComeToFront());
    ExpectPage(ProcsPage);
}

TEST_F(ButtonHandOverTest, ActionsThatDoNothingLeaveTheProgramWhereItIs)
{
    const HWND home = FindTopWindow({.className = L"DesktopExplorerWindow"});
    ASSERT_TRUE(BringToFront(home));
    for (const wchar_t* commandLine : {L"193 0*0", L"193 1*1", L"193 13*13", L"193 99999*3"}) {
        Button(commandLine);
        Send(main, WM_NULL); // it was posted before this
    }
    EXPECT_EQ(home, GetForegroundWindow());
    EXPECT_EQ(TasksPage, program->VisiblePage());
    EXPECT_FALSE(program->Notice());
}

TEST_F(ButtonHandOverTest, AnApplicationIsStarted)
{
    Button(L"193 " + ProgramFolder() + L"\\actor.exe*9");
    const HWND started =
        WaitFor([] { return FindWindowExW(HWND_MESSAGE, nullptr, L"QvActorControl", nullptr); });
    ASSERT_TRUE(started) << "it was not started";
    DWORD process = 0;
    GetWindowThreadProcessId(started, &process);
    const HANDLE handle = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, process);
    ASSERT_TRUE(handle);
    TerminateProcess(handle, 0);
    EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(handle, 10000));
    CloseHandle(handle);
}

TEST_F(ButtonHandOverTest, AnApplicationThatIsGoneIsNotTold)
{
    Button(L"193 \\no such folder\\gone.lnk*9");
    Send(main, WM_NULL);
    Send(main, WM_NULL);
    EXPECT_FALSE(program->Notice());
    EXPECT_FALSE(program->Dialog());
    ExpectPage(TasksPage);
}

TEST_F(ButtonHandOverTest, ManyPressesInARowAreAllTaken)
{
    for (int round = 0; round < 10; round++) {
        Button(L"193 4*9");
        Button(L"194 5*9");
        Button(L"195 6*9");
    }
    EXPECT_TRUE(program->WaitForPage(LauncherPage));
    Button(L"193 3*9");
    ExpectPage(TasksPage);
}

TEST_F(ButtonHandOverTest, TwoInstancesAtTheSameMomentAreBothTaken)
{
    for (int round = 0; round < 5; round++) {
        const std::wstring executable = ProgramFolder() + L"\\Quorvane.exe";
        const ChildProcess one(executable, L"193 4*9");
        const ChildProcess two(executable, L"194 4*9");
        EXPECT_EQ(0u, one.ExitCode(patience));
        EXPECT_EQ(0u, two.ExitCode(patience));
        EXPECT_TRUE(program->WaitForPage(ProcsPage));
        Button(L"193 3*9");
        EXPECT_TRUE(program->WaitForPage(TasksPage));
    }
}
