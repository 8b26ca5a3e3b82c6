// What the handheld does with the keys of the PC's keyboard.
#include "platform/pc/common/KeyFilter.h"

#include <gtest/gtest.h>

using handheld::KeyEvent;
using handheld::KeyFilter;
using Kind = KeyEvent::Kind;

namespace handheld {

static void PrintTo(const KeyEvent& event, std::ostream* out)
{
    *out << "kind " << static_cast<int>(event.kind) << ", key " << event.key << ", swallowed "
         << event.swallowed;
}

} // namespace handheld

class KeyFilterTest : public testing::Test
{
  protected:
    static constexpr KeyEvent passed = {Kind::None, 0, false};
    static constexpr KeyEvent swallowed = {Kind::None, 0, true};
    KeyFilter filter{false};

    KeyEvent Down(DWORD key, bool isLocked = false) { return filter.Press({key, false}, isLocked); }
    KeyEvent Up(DWORD key) { return filter.Release({key, false}); }
};

TEST_F(KeyFilterTest, AButtonIsPressedAndReleasedAndNoProgramSeesIt)
{
    EXPECT_EQ(Down(VK_F5), (KeyEvent{Kind::Pressed, 0xC1, true}));
    EXPECT_EQ(Up(VK_F5), (KeyEvent{Kind::Released, 0xC1, true}));
    EXPECT_EQ(Up(VK_F5), passed);
}

TEST_F(KeyFilterTest, AHeldButtonDoesNotRepeat)
{
    Down(VK_F8);
    EXPECT_EQ(Down(VK_F8), swallowed);
    EXPECT_EQ(Down(VK_F8), swallowed);
    EXPECT_EQ(Up(VK_F8), (KeyEvent{Kind::Released, 0xC4, true}));
    EXPECT_EQ(Down(VK_F8), (KeyEvent{Kind::Pressed, 0xC4, true}));
}

TEST_F(KeyFilterTest, TwoButtonsAreHeldAtOnce)
{
    Down(VK_F5);
    EXPECT_EQ(Down(VK_F6), (KeyEvent{Kind::Pressed, 0xC2, true}));
    EXPECT_EQ(Up(VK_F5), (KeyEvent{Kind::Released, 0xC1, true}));
    EXPECT_EQ(Up(VK_F6), (KeyEvent{Kind::Released, 0xC2, true}));
}

TEST_F(KeyFilterTest, OtherKeysGoToThePrograms)
{
    EXPECT_EQ(Down('A'), passed);
    EXPECT_EQ(Down('A'), passed);
    EXPECT_EQ(Up('A'), passed);
}

TEST_F(KeyFilterTest, ASmartphoneHasAHomeKey)
{
    KeyFilter smartphone(true);
    EXPECT_EQ(smartphone.Press({VK_HOME, true}, false), (KeyEvent{Kind::Pressed, 0x5B, true}));
    EXPECT_EQ(smartphone.Release({VK_HOME, true}), (KeyEvent{Kind::Released, 0x5B, true}));
    EXPECT_EQ(filter.Press({VK_HOME, true}, false), passed);
}

TEST_F(KeyFilterTest, LockedKeysReachNobody)
{
    EXPECT_EQ(Down('A', true), (KeyEvent{Kind::WhileLocked, 'A', true}));
    EXPECT_EQ(Down('A', true), swallowed) << "a repeat";
    EXPECT_EQ(Up('A'), swallowed);
    Down(VK_F5);
    Up(VK_F5);
    EXPECT_EQ(Down(VK_F5, true), (KeyEvent{Kind::WhileLocked, VK_F5, true}));
    EXPECT_EQ(Up(VK_F5), swallowed) << "it was a button's before the lock";
}

TEST_F(KeyFilterTest, ShiftStaysTrueWhileTheKeysAreLocked)
{
    for (DWORD key : {VK_SHIFT, VK_LSHIFT, VK_RSHIFT}) {
        EXPECT_EQ(Down(key, true), passed) << key;
        EXPECT_EQ(Up(key), passed) << key;
    }
    EXPECT_EQ(Down(VK_CONTROL, true), (KeyEvent{Kind::WhileLocked, VK_CONTROL, true}));
}

TEST_F(KeyFilterTest, WhatWasDownBeforeTheLockIsReleased)
{
    Down('A');
    Down(VK_F5);
    Down('B', true);
    EXPECT_EQ(Up('A'), passed) << "its program knows that it is down";
    EXPECT_EQ(Up(VK_F5), (KeyEvent{Kind::Released, 0xC1, true}));
}

TEST_F(KeyFilterTest, AKeyThatRepeatsIntoTheLockIsNoKeyOfTheLock)
{
    Down('A');
    EXPECT_EQ(Down('A', true), swallowed);
    EXPECT_EQ(Up('A'), passed) << "its program knows that it is down";
    EXPECT_EQ(Down('A', true), (KeyEvent{Kind::WhileLocked, 'A', true}));
    EXPECT_EQ(Up('A'), swallowed);
}

TEST_F(KeyFilterTest, TheKeyThatUnlocksIsReleasedUnseen)
{
    Down(VK_RETURN, true);
    EXPECT_EQ(Down(VK_RETURN, false), swallowed) << "still held when the lock has gone";
    EXPECT_EQ(Up(VK_RETURN), swallowed);
    EXPECT_EQ(Down(VK_RETURN, false), passed);
}
