// A process that does not go when it is asked to: the request to close, the wait and the two boxes.
#include "tests/e2e/ProcsScreen.h"
#include "tests/e2e/ScreenText.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"

using namespace rig;
using actor::Closing;

class ProcsEndBoxesTest : public ProcsScreen
{
  protected:
    static constexpr std::chrono::milliseconds aWhile{500};
    std::optional<Actor> actor{std::in_place};

    DWORD Process() const { return actor->Process(); }

    // The question about the test's program, answered with Yes.
    void Ask() const { Answer(AskToEnd(Process(), L"actor.exe"), yesKey); }

    // The rest of the way to its end.
    void Force() const
    {
        Answer(WaitForNoAnswerBox(), VK_RETURN);
        Answer(WaitForWarningBox(), yesKey);
    }

    void ExpectGone(DWORD exitCode = 0) const
    {
        EXPECT_EQ(exitCode, actor->ExitCode(patience).value_or(99));
        ExpectListed(false);
        ExpectUsable();
    }

    // A process that has ended is known for as long as somebody has a handle to it, and a moment longer. The
    // test itself lets go of it here.
    bool IsForgotten(std::chrono::milliseconds timeout)
    {
        const DWORD id = Process();
        actor.reset();
        return WaitFor([=] { return !IsKnown(id); }, timeout);
    }

    void ExpectListed(bool listed) const
    {
        EXPECT_EQ(listed, PlaceOf(Process()).has_value());
        EXPECT_TRUE(WaitFor([&] { return ListCount(list) == static_cast<int>(Processes().size()); }));
    }
};

TEST_F(ProcsEndBoxesTest, NoAtTheQuestionOnlyRefreshes)
{
    const HWND window = actor->Make({.closing = Closing::Ignore});
    Front();
    const HWND question = AskToEnd(Process(), L"actor.exe");
    EXPECT_TRUE(GetDlgItem(question, IDYES));
    EXPECT_TRUE(GetDlgItem(question, IDNO));
    EXPECT_FALSE(GetDlgItem(question, IDOK));
    EXPECT_FALSE(GetDlgItem(question, IDCANCEL));
    const Actor another; // started under the question
    const int mark = ListMark(list);
    Answer(question, noKey);
    ExpectListed(true);
    ExpectUsable();
    EXPECT_EQ(mark, ListMark(list));
    EXPECT_EQ(0, CloseCount(window));
}

TEST_F(ProcsEndBoxesTest, NoAtTheWarningLeavesItRunningAndItsHandleOpen)
{
    Front();
    Ask();
    const HWND first = WaitForNoAnswerBox();
    EXPECT_FALSE(GetDlgItem(first, IDYES));
    Answer(first, VK_RETURN);
    const HWND second = WaitForWarningBox();
    EXPECT_TRUE(GetDlgItem(second, IDYES));
    EXPECT_TRUE(GetDlgItem(second, IDNO));
    EXPECT_TRUE(actor->Running());
    Answer(second, noKey);
    ExpectListed(true);
    ExpectUsable();
    EXPECT_TRUE(actor->Running());
    actor->Kill();
    EXPECT_FALSE(IsForgotten(aWhile));
}

TEST_F(ProcsEndBoxesTest, YesAtTheWarningEndsItAndClosesItsHandle)
{
    Front();
    Ask();
    Force();
    ExpectGone();
    EXPECT_FALSE(program->Notice());
    EXPECT_TRUE(IsForgotten(patience));
}

TEST_F(ProcsEndBoxesTest, EveryTopLevelWindowIsAskedOnceAndNoOther)
{
    const Actor other;
    const HWND stranger = other.Make({.title = L"Stranger", .closing = Closing::Ignore});
    const HWND plain = actor->Make({.title = L"Plain", .closing = Closing::Ignore});
    const std::vector<HWND> windows = {
        plain,
        actor->Make({.title = L"Hidden", .style = WS_POPUP, .closing = Closing::Ignore}),
        actor->Make(
            {.title = L"Disabled", .style = WS_POPUP | WS_VISIBLE | WS_DISABLED, .closing = Closing::Ignore}),
        actor->Make({.title = L"Owned", .owner = plain, .closing = Closing::Ignore}),
        actor->Make({.title = L"Owned by another's", .owner = stranger, .closing = Closing::Ignore}),
    };
    const HWND child =
        actor->Make({.style = WS_CHILD | WS_VISIBLE, .owner = plain, .closing = Closing::Ignore});
    const HWND foreign = other.Make({.title = L"Below", .owner = plain, .closing = Closing::Ignore});
    Front();
    Ask();
    const HWND box = WaitForNoAnswerBox();
    for (HWND window : windows) {
        EXPECT_EQ(1, CloseCount(window)) << testing::PrintToString(TextOf(window));
    }
    for (HWND window : {child, stranger, foreign}) {
        EXPECT_EQ(0, CloseCount(window)) << testing::PrintToString(TextOf(window));
    }
    Answer(box, VK_RETURN);
    Answer(WaitForWarningBox(), yesKey);
    ExpectGone();
    EXPECT_TRUE(other.Running());
}

TEST_F(ProcsEndBoxesTest, AWindowThatHangsHoldsNothingUp)
{
    ASSERT_TRUE(actor->Make({.closing = Closing::Delay, .delay = 600000, .endsActor = true}));
    Front();
    Ask();
    Force();
    ExpectGone();
}

TEST_F(ProcsEndBoxesTest, AnAnswerWithinTwoSecondsIsWaitedForAndTheHandleStaysOpen)
{
    ASSERT_TRUE(actor->Make({.closing = Closing::Delay, .delay = 700, .endsActor = true, .exitCode = 7}));
    Front();
    Ask();
    ExpectGone(7);
    EXPECT_FALSE(IsForgotten(aWhile));
}

TEST_F(ProcsEndBoxesTest, AnAnswerAfterTwoSecondsComesUnderTheBoxes)
{
    ASSERT_TRUE(actor->Make({.closing = Closing::Delay, .delay = 2300, .endsActor = true, .exitCode = 7}));
    Front();
    Ask();
    const HWND box = WaitForNoAnswerBox();
    EXPECT_EQ(7u, actor->ExitCode(patience).value_or(99));
    Answer(box, VK_RETURN);
    Answer(WaitForWarningBox(), yesKey);
    ExpectGone(7);
    EXPECT_FALSE(program->Notice());
}

TEST_F(ProcsEndBoxesTest, AQuestionOfItsOwnMayBeAnsweredUnderTheBoxes)
{
    const HWND window = actor->Make({.title = L"Asking", .closing = Closing::Ask, .endsActor = true});
    Front();
    Ask();
    const HWND own = WaitForTopWindow({.className = L"#32770", .process = Process()});
    ASSERT_TRUE(own);
    const HWND box = WaitFor([] { return program->Dialog(); });
    ASSERT_TRUE(box);
    PostMessageW(own, WM_COMMAND, IDNO, 0);
    ASSERT_TRUE(WaitFor([=] { return !IsWindow(own); }));
    EXPECT_EQ(1, CloseCount(window));
    ASSERT_TRUE(BringToFront(box));
    Force();
    ExpectGone();
}

TEST_F(ProcsEndBoxesTest, WhoLeavesWithTheCodeOfTheRunningCountsAsRunning)
{
    ASSERT_TRUE(actor->Make({.endsActor = true, .exitCode = 259}));
    Front();
    Ask();
    Force();
    const HWND notice = WaitForNotice();
    ASSERT_TRUE(notice);
    EXPECT_TRUE(NoticeSays(Main(), notice, L"Can't kill process."));
    ExpectGone(259);
}
