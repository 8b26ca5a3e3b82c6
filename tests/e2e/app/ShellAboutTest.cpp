// The about box.
#include "rig/Picture.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

class ShellAboutTest : public ShellSession
{
  protected:
    HWND box = nullptr;

    void SetUp() override
    {
        ASSERT_NO_FATAL_FAILURE(ShellSession::SetUp());
        program->Command(AboutCommand);
        box = program->WaitForDialog();
        ASSERT_TRUE(box);
    }

    void ExpectClosed() const
    {
        EXPECT_TRUE(WaitFor([&] { return !IsWindow(box); }));
        EXPECT_TRUE(WaitFor([&] { return IsWindowEnabled(main); }));
        ExpectKeysReachThePage(TasksPage);
    }
};

TEST_F(ShellAboutTest, ItSaysAboutAndNamesTheProgram)
{
    EXPECT_EQ(L"About", TextOf(box));
    EXPECT_NE(std::wstring::npos, BoxText(box).find(L"Quorvane"));
    EXPECT_EQ(main, GetWindow(box, GW_OWNER));
    EXPECT_TRUE(InFront(box));
    EXPECT_FALSE(IsWindowEnabled(main));
}

TEST_F(ShellAboutTest, ReturnClosesIt)
{
    ASSERT_TRUE(InFront(box));
    PressKey(VK_RETURN);
    ExpectClosed();
}

TEST_F(ShellAboutTest, EscapeClosesIt)
{
    ASSERT_TRUE(InFront(box));
    PressKey(VK_ESCAPE);
    ExpectClosed();
}

TEST_F(ShellAboutTest, ItsButtonClosesIt)
{
    const HWND button = FindDescendant(box, L"Button", IDOK);
    ASSERT_TRUE(button);
    ASSERT_TRUE(InFront(box));
    const RECT rect = ScreenRectOf(button);
    Tap({(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2});
    ExpectClosed();
}
