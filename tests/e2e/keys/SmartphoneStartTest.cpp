// A Smartphone's first instance that a button has started does nothing, whatever the button says.
// profiles: smartphone
// device's executable: smartphone
#include "tests/e2e/keys/ButtonSession.h"

using namespace rig;

class SmartphoneStartTest : public ButtonSession
{
  protected:
    void SetUp() override {}
};

TEST_F(SmartphoneStartTest, ItStaysInTheBackgroundOnItsFirstPage)
{
    const HWND home = FindTopWindow({.className = L"DesktopExplorerWindow"});
    ASSERT_TRUE(BringToFront(home));
    Launch(L"193 4*5");
    ASSERT_TRUE(main);
    ASSERT_TRUE(WaitFor([&] { return program->VisiblePage() == TasksPage; }));
    ASSERT_TRUE(WaitFor([&] { return !BarOf(main); }));
    Send(main, WM_NULL);
    Send(main, WM_NULL);
    EXPECT_EQ(TasksPage, program->VisiblePage());
    EXPECT_TRUE(InFront(home));
    Button(L"193 4*5"); // handed over, it is performed
    ExpectPage(ProcsPage);
}
