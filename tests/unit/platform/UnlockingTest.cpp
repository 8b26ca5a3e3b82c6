// How locked keys are unlocked.
#include "platform/pc/common/KeyLock.h"

#include <gtest/gtest.h>

using handheld::KeyLock;
using State = KeyLock::State;

class UnlockingTest : public testing::Test
{
  protected:
    KeyLock pocketPc{false};
    KeyLock smartphone{true};

    static State After(KeyLock& lock, WPARAM key, bool isShiftDown = false)
    {
        lock.Press(key, isShiftDown);
        return lock.Now();
    }
};

TEST_F(UnlockingTest, ItBeginsOpen)
{
    EXPECT_FALSE(pocketPc.IsLocked());
    pocketPc.Lock();
    EXPECT_TRUE(pocketPc.IsLocked());
}

TEST_F(UnlockingTest, OnAPocketPcTheLeftSoftKeyAndEnterUnlock)
{
    pocketPc.Lock();
    EXPECT_EQ(After(pocketPc, VK_F1), State::Confirming);
    EXPECT_TRUE(pocketPc.IsLocked());
    EXPECT_EQ(After(pocketPc, VK_RETURN), State::Open);
}

TEST_F(UnlockingTest, OnASmartphoneTheLeftSoftKeyAndStarUnlock)
{
    smartphone.Lock();
    EXPECT_EQ(After(smartphone, VK_F1), State::Confirming);
    EXPECT_EQ(After(smartphone, VK_RETURN), State::Locked);
    EXPECT_EQ(After(smartphone, VK_F1), State::Confirming);
    EXPECT_EQ(After(smartphone, VK_MULTIPLY), State::Open);
}

TEST_F(UnlockingTest, StarIsWhereTheKeyboardHasIt)
{
    const SHORT star = VkKeyScanW(L'*');
    ASSERT_NE(star, -1);
    const bool shifted = (HIBYTE(star) & 1) != 0;
    smartphone.Lock();
    smartphone.PressUnlock();
    EXPECT_EQ(After(smartphone, LOBYTE(star), !shifted), State::Locked);
    smartphone.PressUnlock();
    EXPECT_EQ(After(smartphone, LOBYTE(star), shifted), State::Open);
}

TEST_F(UnlockingTest, OtherKeysDoNotUnlock)
{
    pocketPc.Lock();
    for (WPARAM key : {VK_RETURN, VK_F2, VK_ESCAPE, VK_F5, VK_MULTIPLY}) {
        EXPECT_EQ(After(pocketPc, key), State::Locked) << key;
    }
}

TEST_F(UnlockingTest, AnotherKeyTakesTheQuestionBack)
{
    for (WPARAM key : {VK_F1, VK_F2, VK_ESCAPE, VK_SPACE, VK_MULTIPLY}) {
        pocketPc.Lock();
        After(pocketPc, VK_F1);
        EXPECT_EQ(After(pocketPc, key), State::Locked) << key;
    }
}

TEST_F(UnlockingTest, ATapAnswersOnlyWhatIsAsked)
{
    pocketPc.Confirm();
    pocketPc.PressUnlock();
    EXPECT_EQ(pocketPc.Now(), State::Open);
    pocketPc.Lock();
    pocketPc.Confirm();
    EXPECT_EQ(pocketPc.Now(), State::Locked);
    pocketPc.PressUnlock();
    EXPECT_EQ(pocketPc.Now(), State::Confirming);
    pocketPc.TakeBack();
    EXPECT_EQ(pocketPc.Now(), State::Locked);
    pocketPc.PressUnlock();
    pocketPc.Confirm();
    EXPECT_EQ(pocketPc.Now(), State::Open);
    pocketPc.TakeBack();
    EXPECT_EQ(pocketPc.Now(), State::Open);
}

TEST_F(UnlockingTest, LockingAgainTakesTheQuestionBack)
{
    pocketPc.Lock();
    pocketPc.PressUnlock();
    pocketPc.Lock();
    EXPECT_EQ(pocketPc.Now(), State::Locked);
}
