// A soft key that is held down repeats itself, and is still pressed only once.
#include "tests/e2e/ShellSession.h"

using namespace rig;

class HeldSoftKeyTest : public ShellSession
{
  protected:
    // Posted: when the X focus moves Wine takes over that no key is down on the keyboard itself, so that
    // injected keys do not count as held.
    void Repeat(WPARAM key) const { PostMessageW(main, WM_KEYDOWN, key, 1 | 1 << 30); }
};

TEST_F(HeldSoftKeyTest, TheMenuStaysOpen)
{
    for (WPARAM key : {VK_F1, VK_F2}) {
        ASSERT_TRUE(PressMenuKey());
        Repeat(key);
        // From the menu's end: "More" and its "About".
        PressKey(VK_UP, 2);
        PressKey(VK_RIGHT);
        PressKey(VK_UP);
        PressKey(VK_RETURN);
        const HWND box = program->WaitForDialog();
        ASSERT_TRUE(box) << "the menu has been closed by key " << key;
        ASSERT_TRUE(InFront(box));
        PressKey(VK_RETURN);
        ASSERT_TRUE(InFront(main));
    }
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
