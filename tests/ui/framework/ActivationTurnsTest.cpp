// What happens while a view is activated: the end of the main window, or another view's turn.
#include "tests/ui/UiTest.h"
#include "tests/ui/framework/TestView.h"

class TurningView : public TestView
{
  public:
    std::function<void()> onFocus;
    std::function<void()> onSize;
    std::function<void()> onActivate;

    void OnActivate(int32_t previousViewId) override
    {
        TestView::OnActivate(previousViewId);
        if (onActivate) {
            onActivate();
        }
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const std::function<void()> step = message == WM_SETFOCUS ? onFocus
                                           : message == WM_SIZE   ? onSize
                                                                  : nullptr;
        if (step) {
            step(); // the view may be gone now
            return 0;
        }
        return TestView::WindowProc(message, wParam, lParam);
    }
};

class ActivationTurnsTest : public UiTest
{
  protected:
    using Views = std::vector<TurningView*>;

    // Runs a test in an application with the views 1 to 3, of which the first is active.
    static int WithViews(const std::function<void(TestApp&, Views&)>& test)
    {
        Views views;
        TestApp app;
        app.create = [&] {
            for (int32_t id = 1; id <= 3; id++) {
                auto* view = new TurningView;
                view->Create(id, 0, 0);
                app.AddView(view);
                views.push_back(view);
            }
            return true;
        };
        app.body = [&] { test(app, views); };
        return app.Start();
    }

    static Events ViewEvents()
    {
        Events events = TakeEvents();
        std::erase_if(events, [](const std::string& event) { return event.starts_with("app "); });
        return events;
    }

    // The end of the main window and of its three views.
    static Events End()
    {
        return {"view 1 OnDestroy", "view 1 deleted",   "view 2 OnDestroy",
                "view 2 deleted",   "view 3 OnDestroy", "view 3 deleted"};
    }

    static void ExpectOnlyVisible(const TestApp& app, const Views& views, size_t visible)
    {
        EXPECT_EQ(app.ActiveView(), views[visible]);
        for (size_t i = 0; i < views.size(); i++) {
            EXPECT_EQ(IsWindowVisible(views[i]->Window()) != FALSE, i == visible) << i;
        }
    }
};

TEST_F(ActivationTurnsTest, AMainWindowThatEndsWhenItsViewGetsTheFocusIsTheEndOfTheActivation)
{
    const int result = WithViews([](TestApp& app, Views& views) {
        views[1]->onFocus = [&app] { DestroyWindow(app.MainWindow()); };
        app.ActivateView(2);
        EXPECT_FALSE(app.HasMainWindow());
        EXPECT_EQ(app.ActiveView(), nullptr);
    });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(ViewEvents(), End());
}

TEST_F(ActivationTurnsTest, SoIsOneThatEndsWhenItsViewIsLaidOut)
{
    WithViews([](TestApp& app, Views& views) {
        MoveWindow(views[1]->Window(), 0, 0, 10, 10, FALSE);
        views[1]->onSize = [&app] { DestroyWindow(app.MainWindow()); };
        app.ActivateView(2);
        EXPECT_FALSE(app.HasMainWindow());
    });
    EXPECT_EQ(ViewEvents(), End());
}

TEST_F(ActivationTurnsTest, SoIsOneThatEndsWhileItsViewIsPainted)
{
    WithViews([](TestApp& app, Views& views) {
        views[1]->onPaint = [&app](HDC) { DestroyWindow(app.MainWindow()); };
        app.ActivateView(2);
        EXPECT_FALSE(app.HasMainWindow());
    });
    EXPECT_EQ(ViewEvents(), End());
}

TEST_F(ActivationTurnsTest, AMainWindowThatEndsInOnActivateTakesThePreviousViewAlong)
{
    WithViews([](TestApp& app, Views& views) {
        views[1]->onActivate = [&app] { DestroyWindow(app.MainWindow()); };
        app.ActivateView(2);
        EXPECT_FALSE(app.HasMainWindow());
    });
    Events expected = {"view 2 OnActivate 1"};
    for (const std::string& event : End()) {
        expected.push_back(event);
    }
    EXPECT_EQ(ViewEvents(), expected);
}

TEST_F(ActivationTurnsTest, AViewActivatedInOnActivateIsTheOnlyOneToBeSeen)
{
    WithViews([](TestApp& app, Views& views) {
        views[1]->onActivate = [&app] { app.ActivateView(3); };
        app.ActivateView(2);
        EXPECT_EQ(ViewEvents(), (Events{"view 2 OnActivate 1", "view 3 OnActivate 2", "view 2 OnDeactivate",
                                        "view 1 OnDeactivate"}));
        ExpectOnlyVisible(app, views, 2);
    });
}

TEST_F(ActivationTurnsTest, ThePreviousViewActivatedAgainInOnActivateStays)
{
    WithViews([](TestApp& app, Views& views) {
        views[1]->onActivate = [&app] { app.ActivateView(1); };
        app.ActivateView(2);
        EXPECT_EQ(ViewEvents(),
                  (Events{"view 2 OnActivate 1", "view 1 OnActivate 2", "view 2 OnDeactivate"}));
        ExpectOnlyVisible(app, views, 0);
    });
}

TEST_F(ActivationTurnsTest, AViewActivatedWhenAnotherGetsTheFocusIsTheOnlyOneToBeSeen)
{
    WithViews([](TestApp& app, Views& views) {
        views[1]->onFocus = [&app] { app.ActivateView(3); };
        app.ActivateView(2);
        EXPECT_EQ(ViewEvents(),
                  (Events{"view 3 OnActivate 2", "view 2 OnDeactivate", "view 1 OnDeactivate"}));
        ExpectOnlyVisible(app, views, 2);
    });
}

TEST_F(ActivationTurnsTest, AViewActivatedWhenAnotherIsLaidOutIsTheOnlyOneToBeSeen)
{
    WithViews([](TestApp& app, Views& views) {
        MoveWindow(views[1]->Window(), 0, 0, 10, 10, FALSE);
        views[1]->onSize = [&app] { app.ActivateView(3); };
        const SPY(SHCreateMenuBar) bars;
        app.ActivateView(2);
        EXPECT_EQ(ViewEvents(),
                  (Events{"view 3 OnActivate 2", "view 2 OnDeactivate", "view 1 OnDeactivate"}));
        ExpectOnlyVisible(app, views, 2);
        EXPECT_EQ(bars.calls.size(), 1U) << "the bar of the view that is shown";
    });
}
