// Programs that the page does not end: the system's by their names, the program itself, and the handheld.
#include "tests/e2e/ProcsScreen.h"
#include "tests/e2e/ScreenText.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/WaitFor.h"

#include <deque>

using namespace rig;

class ProcsProtectedTest : public ProcsScreen
{
  protected:
    static constexpr int endItem = 3;

    static void ExpectNotice(const std::wstring& text)
    {
        const HWND notice = WaitForNotice();
        ASSERT_TRUE(notice);
        EXPECT_TRUE(NoticeSays(Main(), notice, text));
        EXPECT_FALSE(program->Dialog());
        HideNotice();
    }
};

TEST_F(ProcsProtectedTest, TheSystemsProgramsAreRefusedWhateverTheCase)
{
    std::deque<Actor> actors;
    for (const wchar_t* name :
         {L"NK.EXE", L"FileSys.exe", L"DEVICE.EXE", L"Services.exe", L"gwes.exe", L"SHELL32.exe",
          L"repllog.EXE", L"connmgr.exe", L"Cprog.Exe", L"conmanclient2.exe"}) {
        actors.emplace_back(ActorNamed(name));
    }
    Front();
    for (const Actor& actor : actors) {
        SCOPED_TRACE(testing::PrintToString(ExecutableOf(actor.Process())));
        const HWND window = actor.Make({.style = WS_POPUP, .closing = actor::Closing::Ignore});
        SelectProcess(actor.Process());
        Choose(endItem);
        ExpectNotice(L"It's forbidden to end this process!");
        EXPECT_EQ(0, CloseCount(window));
        EXPECT_TRUE(actor.Running());
        ExpectUsable();
    }
}

TEST_F(ProcsProtectedTest, ARefusalListsNothingAgain)
{
    const Actor nk(ActorNamed(L"nk.exe"));
    FrontWithoutRefreshes();
    SelectProcess(nk.Process());
    const int rows = ListCount(list);
    const Actor another;
    ASSERT_TRUE(another.Ready());
    Choose(endItem);
    ASSERT_TRUE(WaitForNotice());
    EXPECT_EQ(rows, ListCount(list));
    Do(CMD_REFRESH);
    EXPECT_EQ(rows + 1, ListCount(list));
    HideNotice();
}

TEST_F(ProcsProtectedTest, OnlyTheWholeNameProtects)
{
    for (const wchar_t* name : {L"xnk.exe", L"NK.EXE.exe", L"gwes", L"Quorvane.exe.exe"}) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(name)));
        const Actor actor(ActorNamed(name));
        ASSERT_TRUE(actor.Make({.endsActor = true}));
        Front();
        Answer(AskToEnd(actor.Process(), name), yesKey);
        EXPECT_EQ(0u, actor.ExitCode(patience).value_or(99));
        ExpectUsable();
    }
}

TEST_F(ProcsProtectedTest, AnothersProgramOfTheSameNameEndsTheProgram)
{
    const Actor namesake(ActorNamed(L"QUORVANE.EXE"));
    const HWND window = namesake.Make({.style = WS_POPUP, .closing = actor::Closing::Ignore});
    SelectProcess(namesake.Process());
    Choose(endItem);
    EXPECT_EQ(0u, program->ExitCode(patience).value_or(99));
    EXPECT_EQ(0, CloseCount(window));
    EXPECT_TRUE(namesake.Running());
}

TEST_F(ProcsProtectedTest, ItsOwnRowEndsTheProgram)
{
    SelectProcess(program->Process());
    Choose(endItem);
    EXPECT_EQ(0u, program->ExitCode(patience).value_or(99));
}

TEST_F(ProcsProtectedTest, TheHandheldIsRefusedAsByTwoTiers)
{
    const DWORD handheld = ProcessOf(Today());
    Answer(AskToEnd(handheld, L"handheld.exe"), yesKey);
    ExpectNotice(L"Tier 2 security of your device doesn't allow terminating processes.");
    EXPECT_TRUE(WaitFor([&] { return ListCount(list) == static_cast<int>(Processes().size()); }));
    EXPECT_EQ(handheld, ProcessOf(Today()));
    ExpectUsable();
}
