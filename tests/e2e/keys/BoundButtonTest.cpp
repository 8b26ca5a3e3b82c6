// A button that is bound in the registry, pressed and held on the handheld with another program in front.
#include "rig/Actor.h"
#include "tests/e2e/HandheldKeys.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

class BoundButtonTest : public ShellSession
{
  protected:
    const ButtonDefault button{firstButton};
    const Actor actor;

    void SetUp() override
    {
        button.Set(OwnCommand(L"193 4*5"));
        ShellSession::SetUp();
        ASSERT_TRUE(Raise(actor.Make({.title = L"In front"})));
    }
};

TEST_F(BoundButtonTest, HeldItPerformsItsHold)
{
    KeyDown(VK_F5);
    EXPECT_TRUE(program->WaitForPage(SysInfoPage));
    KeyUp(VK_F5);
    EXPECT_TRUE(InFront(main));
}

TEST_F(BoundButtonTest, PressedItPerformsItsPress)
{
    PressKey(VK_F5);
    EXPECT_TRUE(program->WaitForPage(ProcsPage));
    EXPECT_TRUE(InFront(main));
}
