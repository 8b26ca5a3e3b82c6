// What comes between the boxes of an ending: refreshes, other pages, a second start, the end of the program.
#include "tests/e2e/ProcsScreen.h"
#include "tests/e2e/ShellSession.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"

using namespace rig;

class ProcsEndInterruptTest : public ProcsScreen
{
  protected:
    const Actor above;
    const Actor victim{ActorNamed(L"victim.exe")};
    const Actor below{ActorNamed(L"below.exe")};
    const HWND window = victim.Make({.style = WS_POPUP, .closing = actor::Closing::Ignore});

    // The three boxes on the way to the end; each answered on the way to the next.
    HWND Open(int stage) const
    {
        const HWND question = AskToEnd(victim.Process(), L"victim.exe");
        return stage == 0 ? question : Next(question, stage);
    }
    HWND Next(HWND question, int stage) const
    {
        Answer(question, yesKey);
        const HWND box = WaitForNoAnswerBox();
        if (stage == 1) {
            return box;
        }
        Answer(box, VK_RETURN);
        return WaitForWarningBox();
    }

    void Disturb(HWND box) const
    {
        ASSERT_TRUE(box);
        Send(Main(), WM_TIMER, 1);
        Do(CMD_REFRESH);
        for (const int page : {CMD_SHOW_TASKS, CMD_SHOW_START, CMD_SHOW_SYSINFO, CMD_SHOW_PROCS}) {
            Do(page);
        }
        EXPECT_EQ(ProcsPage, program->VisiblePage());
        const ChildProcess second(ProgramFolder() + L"\\Quorvane.exe", L"");
        EXPECT_EQ(0u, second.ExitCode(patience).value_or(99));
        EXPECT_TRUE(WaitFor([=] { return GetForegroundWindow() == box; })) << "the box is not in front";
        EXPECT_EQ(box, program->Dialog());
        EXPECT_TRUE(victim.Running());
    }

    void ExpectOthersRun() const
    {
        EXPECT_TRUE(above.Running());
        EXPECT_TRUE(below.Running());
    }
};

TEST_F(ProcsEndInterruptTest, RefreshesPagesAndAStartUnderEachBoxChangeNothing)
{
    const HWND question = Open(0);
    Disturb(question);
    const HWND box = Next(question, 1);
    Disturb(box);
    Answer(box, VK_RETURN);
    const HWND warning = WaitForWarningBox();
    Disturb(warning);
    EXPECT_EQ(1, CloseCount(window));
    Answer(warning, yesKey);
    EXPECT_EQ(0u, victim.ExitCode(patience).value_or(99));
    EXPECT_TRUE(WaitFor([&] { return ListCount(list) == static_cast<int>(Processes().size()); }));
    ExpectUsable();
    ExpectOthersRun();
}

TEST_F(ProcsEndInterruptTest, AnotherPageThatIsShownStays)
{
    const HWND question = Open(0);
    Do(CMD_SHOW_TASKS);
    Answer(question, noKey);
    Send(Main(), WM_NULL); // past the command
    EXPECT_TRUE(WaitFor([] { return GetForegroundWindow() == Main(); }));
    EXPECT_EQ(TasksPage, program->VisiblePage());
    EXPECT_TRUE(WaitFor([] { return FocusOf(Main()) == program->List(TasksPage); }));
    Do(CMD_SHOW_PROCS);
    ExpectUsable();
    EXPECT_TRUE(victim.Running());
}

TEST_F(ProcsEndInterruptTest, TheProgramsEndUnderTheQuestionEndsNothingElse)
{
    ASSERT_TRUE(Open(0));
    PostMessageW(Main(), WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, program->ExitCode(patience).value_or(99));
    EXPECT_TRUE(victim.Running());
    EXPECT_EQ(0, CloseCount(window));
    ExpectOthersRun();
}

TEST_F(ProcsEndInterruptTest, TheProgramsEndUnderTheFirstBoxEndsNothingElse)
{
    ASSERT_TRUE(Open(1));
    PostMessageW(Main(), WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, program->ExitCode(patience).value_or(99));
    EXPECT_TRUE(victim.Running());
    EXPECT_EQ(1, CloseCount(window));
    ExpectOthersRun();
}

TEST_F(ProcsEndInterruptTest, TheProgramsEndUnderTheWarningEndsNothingElse)
{
    ASSERT_TRUE(Open(2));
    PostMessageW(Main(), WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, program->ExitCode(patience).value_or(99));
    EXPECT_TRUE(victim.Running());
    ExpectOthersRun();
}
