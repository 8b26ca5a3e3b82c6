// A soft key that is held down repeats itself, and is still pressed only once.
#include "tests/e2e/ShellSession.h"

using namespace rig;

class HeldSoftKeyTest : public ShellSession
{
  protected:
    static void Repeat(WORD key)
    {
        for (int i = 0; i < 3; i++) {
            KeyDown(key);
        }
    }

    void TearDown() override
    {
        KeyUp(VK_F1);
        KeyUp(VK_F2);
    }
};

TEST_F(HeldSoftKeyTest, TheMenuStaysOpen)
{
    KeyDown(VK_F2);
    const HWND menu = WaitFor([] { return OpenMenu(); });
    ASSERT_TRUE(menu);
    Repeat(VK_F2);
    KeyUp(VK_F2);
    // The next key comes after all those.
    PressKey(VK_F1);
    EXPECT_TRUE(WaitFor([&] { return !BarOf(main); })) << "the other soft key does not end the menu and hide";
    EXPECT_FALSE(OpenMenu());
}

TEST_F(HeldSoftKeyTest, TheMenuDoesNotOpenAgain)
{
    KeyDown(VK_F2);
    ASSERT_TRUE(WaitFor([] { return OpenMenu(); }));
    PressKey(VK_ESCAPE);
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
    KeyDown(VK_F1);
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(dialog); }));
    ASSERT_TRUE(InFront(main));
    Repeat(VK_F1);
    ExpectKeysReachThePage(TasksPage);
    EXPECT_TRUE(BarOf(main));
}
