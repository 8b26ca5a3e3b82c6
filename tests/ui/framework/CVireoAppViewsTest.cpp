// CVireoApp: how it changes from one view to another.
#include "resources/ids.h"
#include "tests/support/Fatal.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/framework/TestView.h"

class CVireoAppViewsTest : public UiTest
{
  protected:
    // Without the activations of the main window, which the shell's bar may cause.
    static Events ViewEvents()
    {
        Events events = TakeEvents();
        std::erase_if(events, [](const std::string& event) { return event.starts_with("app "); });
        return events;
    }

    // Runs a test in an application with the views 1 and 2, of which the first is active.
    static void WithViews(const std::function<void(TestApp&)>& test)
    {
        TestApp app;
        app.create = [] {
            TestView::Add(1, IDB_TASKS);
            TestView::Add(2, IDB_PROCS);
            return true;
        };
        app.body = [&] { test(app); };
        app.Start();
    }
};

TEST_F(CVireoAppViewsTest, AViewIsShownWithItsMenuBarBeforeTheOtherIsHidden)
{
    WithViews([](TestApp& app) {
        const SPY(MoveWindow) move([&](HWND window, int x, int y, int width, int height, BOOL repaint) {
            const SIZE client = ClientSize(app.MainWindow());
            EXPECT_TRUE(x == 0 && y == 0 && width == client.cx && height == client.cy && !repaint);
            Note("MoveWindow " + NameOf(window));
            return move.Real(window, x, y, width, height, repaint);
        });
        const SPY(SHCreateMenuBar) bar([&](SHMENUBARINFO* info) {
            Note("SHCreateMenuBar " + NameOf(info->hwndParent) + " " + std::to_string(info->nToolBarId));
            return bar.Real(info);
        });
        const SPY(ShowWindow) show([&](HWND window, int command) {
            Note("ShowWindow " + NameOf(window) + " " + std::to_string(command));
            return show.Real(window, command);
        });
        const SPY(SetFocus) focus([&](HWND window) {
            Note("SetFocus " + NameOf(window));
            return focus.Real(window);
        });
        const SPY(UpdateWindow) update([&](HWND window) {
            Note("UpdateWindow " + NameOf(window));
            return update.Real(window);
        });
        TakeEvents();
        app.ActivateView(2);
        EXPECT_EQ(ViewEvents(),
                  (Events{"MoveWindow view 2", "SHCreateMenuBar main 171", "ShowWindow view 2 1",
                          "SetFocus view 2", "UpdateWindow view 2", "view 2 OnActivate 1",
                          "ShowWindow view 1 0", "view 1 OnDeactivate"}));
        EXPECT_EQ(app.ActiveView()->Id(), 2);
        EXPECT_EQ(GetFocus(), app.ActiveView()->Window());
        EXPECT_TRUE(IsWindowVisible(app.ActiveView()->Window()));
        EXPECT_FALSE(IsWindowVisible(app.views->At(0)->Window()));
    });
}

TEST_F(CVireoAppViewsTest, TheViewIsTheActiveOneWhileItIsActivated)
{
    WithViews([](TestApp& app) {
        const SPY(SHCreateMenuBar) bar([&](SHMENUBARINFO* info) {
            EXPECT_EQ(app.ActiveView()->Id(), 2);
            return bar.Real(info);
        });
        app.ActivateView(2);
        EXPECT_EQ(bar.calls.size(), 1U);
    });
}

TEST_F(CVireoAppViewsTest, TheFirstActivationHasNoPreviousView)
{
    InApp([](TestApp& app) {
        TestView::Add(4);
        TakeEvents();
        app.ActivateView(4);
        EXPECT_EQ(ViewEvents(), (Events{"view 4 OnActivate 0"}));
    });
}

TEST_F(CVireoAppViewsTest, ActivatingTheActiveViewDoesNothing)
{
    WithViews([](TestApp& app) {
        const SPY(SHCreateMenuBar) shell;
        HWND bar = app.MenuBar();
        TakeEvents();
        app.ActivateView(1);
        EXPECT_TRUE(TakeEvents().empty());
        EXPECT_TRUE(shell.calls.empty());
        EXPECT_EQ(app.MenuBar(), bar);
    });
}

TEST_F(CVireoAppViewsTest, AnUnknownViewIsFatal)
{
    EXPECT_FATAL(WithViews([](TestApp& app) { app.ActivateView(3); }), L"CVireoApp::ActivateView",
                 L"Not found");
}

TEST_F(CVireoAppViewsTest, OfTwoViewsWithOneIdTheFirstIsActivated)
{
    WithViews([](TestApp& app) {
        auto* twin = new TestView;
        twin->id = 2; // without a window: two windows of one class name cannot be
        app.AddView(twin);
        app.ActivateView(2);
        EXPECT_EQ(app.ActiveView(), app.views->At(1));
        EXPECT_NE(app.ActiveView(), twin);
    });
}

TEST_F(CVireoAppViewsTest, AddedViewsAreOwnedInTheOrderOfTheirAddition)
{
    WithViews([](TestApp& app) {
        TestView* third = TestView::Add(9);
        ASSERT_EQ(app.views->Count(), 3U);
        EXPECT_EQ(app.views->At(0)->Id(), 1);
        EXPECT_EQ(app.views->At(1)->Id(), 2);
        EXPECT_EQ(app.views->At(2), third);
        TakeEvents();
    });
    Events end = TakeEvents();
    std::erase_if(end, [](const std::string& event) { return event.find("deleted") == std::string::npos; });
    EXPECT_EQ(end, (Events{"view 1 deleted", "view 2 deleted", "view 9 deleted"}));
}

TEST_F(CVireoAppViewsTest, SoftKeyMenusAndCommandsFollowTheActiveView)
{
    WithViews([](TestApp& app) {
        app.ActivateView(2);
        TakeEvents();
        SendMessageW(app.MainWindow(), WM_COMMAND, 5, 0);
        app.ActivateView(1);
        SendMessageW(app.MainWindow(), WM_COMMAND, 6, 0);
        EXPECT_EQ(ViewEvents(), (Events{"view 2 OnCommand 5,0,0", "view 1 OnActivate 2",
                                        "view 2 OnDeactivate", "view 1 OnCommand 6,0,0"}));
    });
}
