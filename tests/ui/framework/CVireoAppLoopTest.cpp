// CVireoApp: whom its message loop offers a message first.
#include "resources/ids.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/framework/TestView.h"

#include <map>

// A message is watched on its way through the loop: "view" and "program" stand for the accelerator tables.
class CVireoAppLoopTest : public UiTest
{
  protected:
    static constexpr UINT watched = TestApp::messageNoted + 1;
    std::map<HACCEL, std::string> tables;
    std::string taker; // the table that takes the watched message

    SPY(LoadAcceleratorsW) load;
    SPY(TranslateAcceleratorW) accelerate;
    SPY(TranslateMessage) translate;
    SPY(DispatchMessageW) dispatch;

    CVireoAppLoopTest()
    {
        load.instead = [this](HINSTANCE instance, const wchar_t* table) {
            HACCEL loaded = load.Real(instance, table);
            tables[loaded] = table == MAKEINTRESOURCEW(IDA_PROGRAM) ? "program" : "view";
            return loaded;
        };
        accelerate.instead = [this](HWND window, HACCEL table, MSG* message) {
            if (message->message != watched) {
                return accelerate.Real(window, table, message);
            }
            Note("accelerators " + tables[table] + " on " + NameOf(window));
            return tables[table] == taker ? 1 : 0;
        };
        translate.instead = [this](const MSG* message) {
            if (message->message == watched) {
                Note("translate");
            }
            return translate.Real(message);
        };
        dispatch.instead = [this](const MSG* message) {
            if (message->message == watched) {
                Note("dispatch");
            }
            return dispatch.Real(message);
        };
    }

    // The way of one message through the loop of an application, with or without a view.
    static Events Way(bool withView, uint32_t viewAcceleratorId)
    {
        TestApp app;
        app.create = [&] {
            if (withView) {
                TestView::Add(3, 0, viewAcceleratorId);
            }
            return true;
        };
        app.endsAfterBody = false;
        app.body = [&] {
            PostMessageW(app.MainWindow(), watched, 0, 0);
            PostMessageW(app.MainWindow(), WM_CLOSE, 0, 0);
        };
        app.Start();
        Events way = TakeEvents();
        std::erase_if(way, [](const std::string& event) {
            return !event.starts_with("accelerators") && event != "translate" && event != "dispatch";
        });
        return way;
    }
};

TEST_F(CVireoAppLoopTest, TheViewsAcceleratorsComeBeforeTheProgramsAndBothBeforeTheWindow)
{
    EXPECT_EQ(Way(true, IDA_TASKS), (Events{"accelerators view on view 3", "accelerators program on view 3",
                                            "translate", "dispatch"}));
}

TEST_F(CVireoAppLoopTest, WhatTheViewsAcceleratorsTakeGoesNoFurther)
{
    taker = "view";
    EXPECT_EQ(Way(true, IDA_TASKS), (Events{"accelerators view on view 3"}));
}

TEST_F(CVireoAppLoopTest, WhatTheProgramsAcceleratorsTakeIsNotDispatched)
{
    taker = "program";
    EXPECT_EQ(Way(true, IDA_TASKS),
              (Events{"accelerators view on view 3", "accelerators program on view 3"}));
}

TEST_F(CVireoAppLoopTest, AViewWithoutAcceleratorsSkipsItsStep)
{
    EXPECT_EQ(Way(true, 0), (Events{"accelerators program on view 3", "translate", "dispatch"}));
}

TEST_F(CVireoAppLoopTest, WithoutAViewTheProgramsAcceleratorsActOnTheMainWindow)
{
    EXPECT_EQ(Way(false, 0), (Events{"accelerators program on main", "translate", "dispatch"}));
}

TEST_F(CVireoAppLoopTest, AnAcceleratorKeyBecomesACommandOfTheActiveView)
{
    TestApp app;
    app.create = [] {
        TestView::Add(3, 0, IDA_TASKS);
        return true;
    };
    app.endsAfterBody = false;
    app.body = [&] {
        PostMessageW(app.ActiveView()->Window(), WM_KEYDOWN, VK_RIGHT, 1);
        PostMessageW(app.MainWindow(), WM_CLOSE, 0, 0);
    };
    app.Start();
    // The high word of an accelerator's command is 1.
    const Events events = TakeEvents();
    ASSERT_FALSE(events.empty());
    EXPECT_EQ(events.front(), "view 3 OnCommand 32775,1,0");
}

TEST_F(CVireoAppLoopTest, WithoutAMainWindowTheLoopEndsThoughTheQuitMessageWasTaken)
{
    EXPECT_EQ(InApp([](TestApp& app) {
                  DestroyWindow(app.MainWindow());
                  EXPECT_TRUE(TakeQuit());
              }),
              0);
}
