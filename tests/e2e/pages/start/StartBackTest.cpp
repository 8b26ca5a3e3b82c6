// The Back key above the launcher page: it leaves what is open there, and what was typed stays.
// profiles: pocketpc smartphone
// device's executable: pocketpc smartphone
#include "tests/e2e/StartScreen.h"

#include "resources/ids.h"
#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"

using namespace rig;

class StartBackTest : public StartScreen
{
  protected:
    static constexpr int applicationInfo = 2; // in the page's menu

    void SetUp() override
    {
        ASSERT_NO_FATAL_FAILURE(StartScreen::SetUp());
        Search(L"cal");
        ASSERT_TRUE(HasRows(2));
    }

    // The next one erases again.
    void ExpectSearchLeft() const
    {
        EXPECT_EQ(L"cal", TextOf(box));
        ExpectUsable();
        PressKey(VK_ESCAPE);
        EXPECT_TRUE(BoxHas(L"ca")) << testing::PrintToString(TextOf(box));
        EXPECT_EQ(Main(), GetForegroundWindow());
    }
};

TEST_F(StartBackTest, ItClosesTheReport)
{
    Choose(applicationInfo);
    const HWND report = program->WaitForDialog();
    ASSERT_TRUE(report);
    ASSERT_TRUE(WaitFor([&] { return GetForegroundWindow() == report; }));
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(WaitFor([&] { return !IsWindow(report); })) << "the report stays";
    ExpectSearchLeft();
}

TEST_F(StartBackTest, ItClosesTheMenu)
{
    PressKey(VK_F2);
    ASSERT_TRUE(WaitFor([] { return OpenMenu(); }));
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(WaitFor([] { return !OpenMenu(); }));
    ExpectSearchLeft();
}

TEST_F(StartBackTest, ItClosesTheAboutBox)
{
    PostMessageW(Main(), WM_COMMAND, CMD_ABOUT, 0);
    const HWND about = program->WaitForDialog();
    ASSERT_TRUE(about);
    ASSERT_TRUE(WaitFor([&] { return GetForegroundWindow() == about; }));
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(WaitFor([&] { return !IsWindow(about); })) << "the box stays";
    ExpectSearchLeft();
}
