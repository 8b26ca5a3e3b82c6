// Processes that end, or come, while one is being ended.
#include "tests/e2e/ProcsScreen.h"
#include "tests/e2e/ScreenText.h"

#include "rig/Controls.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"

using namespace rig;

class ProcsEndRaceTest : public ProcsScreen
{
  protected:
    std::optional<Actor> actor{std::in_place};

    DWORD Process() const { return actor->Process(); }

    // Nobody holds on to it.
    void Vanish()
    {
        const DWORD id = Process();
        actor.reset();
        ASSERT_TRUE(WaitFor([=] { return !IsKnown(id); }));
    }

    void ExpectRefused() const
    {
        const HWND notice = WaitForNotice();
        ASSERT_TRUE(notice);
        EXPECT_TRUE(NoticeSays(Main(), notice, L"Can't end process"));
        EXPECT_TRUE(WaitFor([&] { return ListCount(list) == static_cast<int>(Processes().size()); }));
        ExpectUsable();
    }
};

TEST_F(ProcsEndRaceTest, GoneBeforeTheCommand)
{
    FrontWithoutRefreshes();
    SelectProcess(Process());
    const int rows = ListCount(list);
    Vanish();
    ASSERT_EQ(rows, ListCount(list)) << "refreshed too early";
    Choose(3);
    Answer(WaitForBox(L"End process", L"End actor.exe?"), yesKey);
    ExpectRefused();
    EXPECT_EQ(rows - 1, ListCount(list));
}

TEST_F(ProcsEndRaceTest, GoneUnderTheQuestion)
{
    Front();
    const HWND question = AskToEnd(Process(), L"actor.exe");
    Vanish();
    Answer(question, yesKey);
    ExpectRefused();
}

TEST_F(ProcsEndRaceTest, GoneByItselfDuringTheWait)
{
    const HWND window = actor->Make({.closing = actor::Closing::Ignore});
    Front();
    Answer(AskToEnd(Process(), L"actor.exe"), yesKey);
    ASSERT_TRUE(WaitFor([=] { return CloseCount(window) == 1; }));
    actor->Leave(3);
    EXPECT_EQ(3u, actor->ExitCode(patience).value_or(99));
    EXPECT_TRUE(WaitFor([&] { return ListCount(list) == static_cast<int>(Processes().size()); }));
    ExpectUsable();
    EXPECT_FALSE(program->Notice());
}

// The row is another's by the time of the answer.
TEST_F(ProcsEndRaceTest, TheRowsMoveUnderEachBox)
{
    std::optional<Actor> above(std::in_place);
    std::optional<Actor> above2(std::in_place);
    const Actor victim(ActorNamed(L"victim.exe"));
    const Actor below(ActorNamed(L"below.exe"));
    const Actor below2(ActorNamed(L"below2.exe"));
    ASSERT_TRUE(below2.Ready());
    Front();
    Answer(AskToEnd(victim.Process(), L"victim.exe"), yesKey);
    HWND box = WaitForNoAnswerBox();
    above.reset();
    RefreshExactly();
    Answer(box, VK_RETURN);
    box = WaitForWarningBox();
    above2.reset();
    RefreshExactly();
    Answer(box, yesKey);
    EXPECT_EQ(0u, victim.ExitCode(patience).value_or(99));
    EXPECT_TRUE(WaitFor([&] { return ListCount(list) == static_cast<int>(Processes().size()); }));
    EXPECT_TRUE(actor->Running());
    EXPECT_TRUE(below.Running());
    EXPECT_TRUE(below2.Running());
    ExpectUsable();
}
