// A soft key that is held down repeats itself, and is still pressed only once.
#include "tests/e2e/ShellSession.h"

using namespace rig;

class HeldSoftKeyTest : public ShellSession
{
  protected:
    // Posted: when the X focus moves Wine takes over that no key is down on the keyboard itself, so that
    // injected keys do not count as held.
    void Repeat(WPARAM key) const
    {
        for (int i = 0; i < 3; i++) {
            PostMessageW(main, WM_KEYDOWN, key, 1 | 1 << 30);
        }
    }
};

TEST_F(HeldSoftKeyTest, TheMenuStaysOpen)
{
    ASSERT_TRUE(PressMenuKey());
    Repeat(VK_F2);
    Repeat(VK_F1);
    PressKey(VK_UP); // from the menu's end: "Exit"
    PressKey(VK_RETURN);
    ExpectEnd();
}

TEST_F(HeldSoftKeyTest, TheMenuDoesNotOpenAgain)
{
    ASSERT_TRUE(PressMenuKey());
    MenuKeys(VK_ESCAPE);
    ASSERT_TRUE(WaitFor([] { return !OpenMenu(); }));
    Repeat(VK_F2);
    ExpectKeysReachThePage(TasksPage); // a menu would take them
    EXPECT_FALSE(OpenMenu());
}

TEST_F(HeldSoftKeyTest, WhatClosedADialogDoesNotHideTheProgram)
{
    const HWND dialog = OpenWindowsList();
    ASSERT_TRUE(dialog);
    ASSERT_TRUE(InFront(dialog));
    PressKey(VK_F1);
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(dialog); }));
    ASSERT_TRUE(InFront(main));
    Repeat(VK_F1);
    ExpectKeysReachThePage(TasksPage);
    EXPECT_TRUE(BarOf(main));
}
