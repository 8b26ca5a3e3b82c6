// Buttons that close, when there is nothing to close, when what is in front does not answer, and from the
// program's own dialog.
#include "tests/e2e/NothingInFront.h"
#include "tests/e2e/keys/ButtonSession.h"

using namespace rig;

static constexpr wchar_t closeCurrent[] = L"193 7*1";
static constexpr wchar_t closeOthers[] = L"193 9*1";
static constexpr wchar_t showProcesses[] = L"194 4*4";

class ButtonClosingFaultTest : public ButtonSession
{
  protected:
    Actor actor;
    HWND other = nullptr;

    void SetUp() override
    {
        other = actor.Make({.title = L"Other"});
        ASSERT_TRUE(other);
        ButtonSession::SetUp();
    }

    static bool Gone(HWND window)
    {
        return WaitFor([=] { return !IsWindow(window); });
    }
    // What a button has posted is carried out.
    void Settle() const
    {
        Send(main, WM_NULL);
        Send(main, WM_NULL);
    }

    // The program waits for what hangs, with the next button's action behind it, and goes on at its end.
    void ExpectWaits(Actor& hung) const
    {
        Button(showProcesses);
        EXPECT_FALSE(
            WaitFor([&] { return program->VisiblePage() == ProcsPage; }, std::chrono::milliseconds(500)))
            << "it does not wait";
        hung.Kill();
        EXPECT_TRUE(program->WaitForPage(ProcsPage)) << "it waits for what has ended";
        ExpectPage(ProcsPage);
    }
};

TEST_F(ButtonClosingFaultTest, WithNothingInFrontNothingIsClosed)
{
    const NothingInFront nothing;
    ASSERT_FALSE(GetForegroundWindow());
    Button(closeCurrent);
    Settle();
    EXPECT_FALSE(GetForegroundWindow());
    EXPECT_FALSE(program->Notice());
    EXPECT_EQ(CloseCount(other), 0);
    ASSERT_TRUE(ComeToFront());
    ExpectPage(TasksPage);
}

TEST_F(ButtonClosingFaultTest, WithNothingInFrontAllOthersAreClosed)
{
    const NothingInFront nothing;
    ASSERT_FALSE(GetForegroundWindow());
    Button(closeOthers);
    EXPECT_TRUE(Gone(other));
    EXPECT_TRUE(program->IsRunning());
    ASSERT_TRUE(ComeToFront());
    ExpectPage(TasksPage);
}

TEST_F(ButtonClosingFaultTest, WhatHangsInFrontIsWaitedForUntilItEnds)
{
    Actor hung;
    const HWND window = hung.Make({.title = L"Hung", .closing = actor::Closing::Delay, .delay = 60000});
    ASSERT_TRUE(Raise(window));
    ASSERT_TRUE(Hang(window));
    Button(closeCurrent);
    ExpectWaits(hung);
    EXPECT_EQ(CloseCount(other), 0);
}

TEST_F(ButtonClosingFaultTest, WhatHangsAmongTheOthersIsWaitedForUntilItEnds)
{
    Actor hung;
    const HWND window = hung.Make({.title = L"Hung", .closing = actor::Closing::Delay, .delay = 60000});
    ASSERT_TRUE(Raise(window));
    ASSERT_TRUE(Hang(window));
    ASSERT_TRUE(ComeToFront());
    Button(closeOthers);
    ExpectWaits(hung);
    EXPECT_TRUE(Gone(other)) << "what hangs has kept it";
}

TEST_F(ButtonClosingFaultTest, FromItsDialogAllOthersAreClosedAndTheDialogStays)
{
    const HWND dialog = OpenReport();
    ASSERT_TRUE(dialog && InFront(dialog));
    Button(closeOthers);
    EXPECT_TRUE(Gone(other));
    ExpectNotice(L"Done");
    ASSERT_TRUE(IsWindow(dialog));
    ASSERT_TRUE(InFront(dialog));
    PressKey(VK_RETURN);
    EXPECT_TRUE(Gone(dialog));
    ExpectPage(TasksPage);
}
