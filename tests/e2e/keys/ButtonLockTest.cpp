// A button that locks the keys, pressed with another program in front.
// profiles: pocketpc smartphone
// device's executable: pocketpc smartphone
#include "rig/Actor.h"
#include "tests/e2e/HandheldKeys.h"
#include "tests/e2e/LockedKeys.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

class ButtonLockTest : public ShellSession
{
  protected:
    const ButtonDefault button{firstButton};
    const Actor actor;
    HWND front = nullptr;

    ~ButtonLockTest() override
    {
        if (LockScreen()) {
            UnlockKeys();
        }
    }
    void SetUp() override
    {
        button.Set(OwnCommand(L"193 12*1"));
        ShellSession::SetUp();
        front = actor.Make({.title = L"In front"});
        ASSERT_TRUE(Raise(front));
    }
};

TEST_F(ButtonLockTest, PressedItLocksTheKeysUntilTheyAreUnlocked)
{
    const int keys = KeyCount(front);
    PressKey(VK_F5);
    ASSERT_TRUE(WaitForLockScreen()) << "the keys are not locked";
    PressKey('K');
    PressKey(VK_RETURN);
    UnlockKeys();
    EXPECT_TRUE(WaitFor([] { return !LockScreen(); }));
    EXPECT_TRUE(InFront(front));
    PressKey('K');
    EXPECT_TRUE(WaitFor([=, this] { return KeyCount(front) > keys; }));
    EXPECT_EQ(KeyCount(front), keys + 1) << "a key has passed the lock";
}
