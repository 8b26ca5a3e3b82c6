// A button that turns the screen, pressed and held with another program in front.
// device's executable: pocketpc
#include "rig/Actor.h"
#include "tests/e2e/HandheldKeys.h"
#include "tests/e2e/TurnedSession.h"

using namespace rig;

class ButtonTurnTest : public TurnedSession
{
  protected:
    const ButtonDefault button{firstButton};
    const Actor actor;
    HWND front = nullptr;

    void SetUp() override
    {
        button.Set(OwnCommand(L"193 10*11"));
        TurnedSession::SetUp();
        front = actor.Make({.title = L"In front"});
        ASSERT_TRUE(Raise(front));
    }

    void ExpectPageFits() const
    {
        EXPECT_TRUE(InFront(front)) << "the program has come forward";
        ASSERT_TRUE(Raise(main));
        ExpectLaidOut(TasksPage);
        ASSERT_TRUE(Raise(front));
    }
};

// To the left and to the right, say its actions; it is the same turn.
TEST_F(ButtonTurnTest, PressedAndHeldItTurnsTheScreenAndBack)
{
    PressKey(VK_F5);
    ASSERT_TRUE(BecomesSideways());
    ExpectPageFits();
    PressKey(VK_F5);
    ASSERT_TRUE(BecomesUpright());
    ExpectPageFits();
    KeyDown(VK_F5);
    EXPECT_TRUE(BecomesSideways());
    KeyUp(VK_F5);
    KeyDown(VK_F5);
    EXPECT_TRUE(BecomesUpright());
    KeyUp(VK_F5);
    ExpectPageFits();
}
