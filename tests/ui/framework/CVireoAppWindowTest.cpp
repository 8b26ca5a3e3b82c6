// CVireoApp: what the main window does with its messages.
#include "resources/ids.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/framework/TestView.h"

class CVireoAppWindowTest : public UiTest
{
  protected:
    // Runs a test in an application with one view, 3, which is active.
    static void WithView(const std::function<void(TestApp&)>& test)
    {
        TestApp app;
        app.create = [] {
            TestView::Add(3);
            return true;
        };
        app.body = [&] { test(app); };
        app.Start();
    }
};

TEST_F(CVireoAppWindowTest, ANewSizeIsTheActiveViewsSizeToo)
{
    WithView([](TestApp& app) {
        const SPY(MoveWindow) move;
        EXPECT_EQ(SendMessageW(app.MainWindow(), WM_SIZE, 0, MAKELPARAM(100, 50)), 0);
        ASSERT_EQ(move.calls.size(), 1U);
        EXPECT_EQ(move.calls[0], std::make_tuple(app.ActiveView()->Window(), 0, 0, 100, 50, FALSE));
    });
}

TEST_F(CVireoAppWindowTest, ANewSizeWithoutAViewMovesNothing)
{
    InApp([](TestApp& app) {
        const SPY(MoveWindow) move;
        EXPECT_EQ(SendMessageW(app.MainWindow(), WM_SIZE, 0, MAKELPARAM(100, 50)), 0);
        EXPECT_TRUE(move.calls.empty());
    });
}

TEST_F(CVireoAppWindowTest, ActivationGoesToTheShellFirstAndThenToTheHook)
{
    InApp([](TestApp& app) {
        const SPY(SHHandleWMActivate)
            shell([&](HWND window, WPARAM wParam, LPARAM lParam, SHACTIVATEINFO* info, DWORD flags) {
                EXPECT_EQ(window, app.MainWindow());
                EXPECT_EQ(info, &app.activateInfo);
                EXPECT_EQ(flags, 0U);
                Note("shell " + Numbers(LOWORD(wParam), HIWORD(wParam), lParam));
                return TRUE;
            });
        EXPECT_EQ(SendMessageW(app.MainWindow(), WM_ACTIVATE, WA_ACTIVE, 7), 0);
        EXPECT_EQ(TakeEvents(), (Events{"shell 1,0,7", "app OnActivate"}));
        SendMessageW(app.MainWindow(), WM_ACTIVATE, WA_CLICKACTIVE, 0);
        EXPECT_EQ(TakeEvents(), (Events{"shell 2,0,0", "app OnActivate"}));
        // The high word says that the window is minimised and does not count.
        SendMessageW(app.MainWindow(), WM_ACTIVATE, MAKEWPARAM(WA_INACTIVE, 1), 0);
        EXPECT_EQ(TakeEvents(), (Events{"shell 0,1,0", "app OnDeactivate"}));
    });
}

TEST_F(CVireoAppWindowTest, OnlyTheInputPanelsSettingGoesToTheShell)
{
    InApp([](TestApp& app) {
        const SPY(SHHandleWMSettingChange) shell;
        EXPECT_EQ(SendMessageW(app.MainWindow(), WM_SETTINGCHANGE, 0x3002, 0), 0);
        EXPECT_EQ(SendMessageW(app.MainWindow(), WM_SETTINGCHANGE, 225, 0), 0);
        EXPECT_TRUE(shell.calls.empty());
        EXPECT_EQ(SendMessageW(app.MainWindow(), WM_SETTINGCHANGE, 224, 9), 0);
        ASSERT_EQ(shell.calls.size(), 1U);
        EXPECT_EQ(shell.calls[0],
                  std::make_tuple(app.MainWindow(), WPARAM{224}, LPARAM{9}, &app.activateInfo));
    });
}

TEST_F(CVireoAppWindowTest, CommandsAndMenusGoToTheActiveView)
{
    WithView([](TestApp& app) {
        EXPECT_EQ(SendMessageW(app.MainWindow(), WM_COMMAND, MAKEWPARAM(40000, 50000), 77), 0);
        EXPECT_EQ(SendMessageW(app.MainWindow(), WM_INITMENUPOPUP, 291, MAKELPARAM(4, 1)), 0);
        EXPECT_EQ(TakeEvents(),
                  (Events{"view 3 OnCommand 40000,50000,77", "view 3 OnInitMenuPopup 291,4,0"}));
    });
}

TEST_F(CVireoAppWindowTest, CommandsAndMenusGoToTheApplicationWithoutAView)
{
    InApp([](TestApp& app) {
        EXPECT_EQ(SendMessageW(app.MainWindow(), WM_COMMAND, MAKEWPARAM(40000, 50000), 77), 0);
        EXPECT_EQ(SendMessageW(app.MainWindow(), WM_INITMENUPOPUP, 291, MAKELPARAM(4, 1)), 0);
        EXPECT_EQ(TakeEvents(), (Events{"app OnCommand 40000,50000,77", "app OnInitMenuPopup 291,4,0"}));
    });
}

TEST_F(CVireoAppWindowTest, EverythingElseGoesToTheApplicationWhoseResultCounts)
{
    WithView([](TestApp& app) {
        EXPECT_EQ(SendMessageW(app.MainWindow(), TestApp::messageNoted + 6, 7, 8), TestApp::messageResult);
        EXPECT_EQ(TakeEvents(), (Events{"app WindowProc 6,7,8"}));
    });
}

TEST_F(CVireoAppWindowTest, AnotherMenuBarReplacesTheCurrentOne)
{
    InApp([](TestApp& app) {
        HWND before = app.MenuBar();
        const SPY(SHCreateMenuBar) shell([&](SHMENUBARINFO* info) {
            EXPECT_FALSE(IsWindow(before)) << "the current bar goes first";
            EXPECT_EQ(info->cbSize, sizeof(SHMENUBARINFO));
            EXPECT_EQ(info->hwndParent, app.MainWindow());
            EXPECT_EQ(info->nToolBarId, static_cast<UINT>(IDB_TASKS));
            EXPECT_EQ(info->hInstRes, app.Instance());
            return shell.Real(info);
        });
        EXPECT_TRUE(app.CreateMenuBar(app.MainWindow(), IDB_TASKS));
        EXPECT_EQ(shell.calls.size(), 1U);
        EXPECT_TRUE(IsWindow(app.MenuBar()));
    });
}

TEST_F(CVireoAppWindowTest, ARefusedMenuBarLeavesNone)
{
    InApp([](TestApp& app) {
        HWND before = app.MenuBar();
        const SPY(SHCreateMenuBar) shell([&](SHMENUBARINFO* info) {
            info->hwndMB = info->hwndParent; // must not be taken
            return FALSE;
        });
        EXPECT_FALSE(app.CreateMenuBar(app.MainWindow(), IDB_TASKS));
        EXPECT_EQ(app.MenuBar(), nullptr);
        EXPECT_FALSE(IsWindow(before));
    });
}
