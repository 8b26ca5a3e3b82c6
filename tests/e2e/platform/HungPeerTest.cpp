// Hide beside a program that does not answer.
#include "rig/Actor.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

class HungPeerTest : public ShellSession
{
  protected:
    // Longer than the test has patience.
    static constexpr DWORD hangs = 60000;

    void ExpectHidden() const
    {
        EXPECT_TRUE(WaitFor([&] { return !BarOf(main) && GetForegroundWindow() != main; }))
            << "it is still in front";
        EXPECT_TRUE(WaitFor([&] { return Answers(main, std::chrono::seconds(1)); }))
            << "it waits for the other program";
    }
};

TEST_F(HungPeerTest, HideDoesNotWaitForTheProgramBehind)
{
    const Actor actor;
    const HWND peer = actor.Make({.closing = actor::Closing::Delay, .delay = hangs});
    ASSERT_TRUE(Raise(peer));
    ASSERT_TRUE(Raise(main));
    ASSERT_TRUE(Hang(peer)) << "it still answers";
    program->Command(HideCommand);
    ExpectHidden();
    EXPECT_TRUE(ComeToFront());
    EXPECT_TRUE(WaitFor([&] { return BarOf(main); }));
    ExpectKeysReachThePage(TasksPage);
}

TEST_F(HungPeerTest, HideDoesNotWaitForAProgramFurtherBehind)
{
    const Actor hung;
    const Actor next;
    const HWND peer = hung.Make({.closing = actor::Closing::Delay, .delay = hangs});
    const HWND front = next.Make({.title = L"Next"});
    ASSERT_TRUE(Raise(peer));
    ASSERT_TRUE(Raise(front));
    ASSERT_TRUE(Raise(main));
    ASSERT_TRUE(Hang(peer)) << "it still answers";
    program->Command(HideCommand);
    ExpectHidden();
    EXPECT_TRUE(InFront(front));
}
