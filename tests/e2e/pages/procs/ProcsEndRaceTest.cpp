// Processes that end, or come, while one is being ended.
#include "tests/e2e/ProcsScreen.h"
#include "tests/e2e/ScreenText.h"

#include "rig/Controls.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"

#include <deque>

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

// The victim's row is another's by the time of each answer.
TEST_F(ProcsEndRaceTest, TheRowsMoveUnderEachBox)
{
    std::deque<Actor> above(3);
    const Actor victim(ActorNamed(L"victim.exe"));
    const std::deque<Actor> below(3);
    ASSERT_TRUE(below.back().Ready());
    const auto removeAbove = [&] {
        above.pop_front();
        RefreshExactly();
    };
    Front();
    HWND box = AskToEnd(victim.Process(), L"victim.exe");
    removeAbove();
    Answer(box, yesKey);
    box = WaitForNoAnswerBox();
    removeAbove();
    Answer(box, VK_RETURN);
    box = WaitForWarningBox();
    removeAbove();
    Answer(box, yesKey);
    EXPECT_EQ(0u, victim.ExitCode(patience).value_or(99));
    EXPECT_TRUE(WaitFor([&] { return ListCount(list) == static_cast<int>(Processes().size()); }));
    EXPECT_TRUE(actor->Running());
    for (const Actor& each : below) {
        EXPECT_TRUE(each.Running());
    }
    ExpectUsable();
}
