// The launcher page: the keys that move the selection while the focus stays in the search box, and Back.
// profiles: pocketpc smartphone
#include "tests/ui/pages/start/StartPageTest.h"

#include <algorithm>

class StartKeysTest : public StartPageTest
{
  protected:
    // The key that the command presses in the list.
    static WPARAM KeyOf(ProgramApp& app, UINT command)
    {
        std::vector<WPARAM> keys;
        const SPY(SendMessageW) send([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
            if (message == WM_KEYDOWN) {
                EXPECT_EQ(window, List(app));
                keys.push_back(wParam);
            }
            return send.Real(window, message, wParam, lParam);
        });
        Run(app, command);
        EXPECT_EQ(keys.size(), 1u) << command;
        return keys.empty() ? 0 : keys[0];
    }

    // What the launcher's menu bar is told about keys.
    static std::vector<std::pair<WPARAM, LPARAM>> Overrides(ProgramApp& app,
                                                            const std::function<void()>& step)
    {
        std::vector<std::pair<WPARAM, LPARAM>> told;
        const SPY(SendMessageW) send([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
            if (message == WM_USER + 403) {
                EXPECT_EQ(window, app.MenuBar());
                EXPECT_NE(window, nullptr);
                told.emplace_back(wParam, lParam);
            }
            return send.Real(window, message, wParam, lParam);
        });
        step();
        return told;
    }
};

TEST_F(StartKeysTest, EveryCommandPressesItsKeyInTheList)
{
    menu.AddMany(3);
    OnPage([](ProgramApp& app) {
        EXPECT_EQ(KeyOf(app, 0x8013), static_cast<WPARAM>(VK_UP));
        EXPECT_EQ(KeyOf(app, 0x8014), static_cast<WPARAM>(VK_DOWN));
        EXPECT_EQ(KeyOf(app, 0x8025), static_cast<WPARAM>(VK_END));
        EXPECT_EQ(KeyOf(app, 0x8026), static_cast<WPARAM>(VK_HOME));
        EXPECT_EQ(KeyOf(app, 0x8027), static_cast<WPARAM>(VK_NEXT));
        EXPECT_EQ(KeyOf(app, 0x8028), static_cast<WPARAM>(VK_PRIOR));
    });
}

TEST_F(StartKeysTest, TheSelectionMovesAndTheFocusStays)
{
    menu.AddMany(40);
    OnPage([](ProgramApp& app) {
        Run(app, 0x8014);
        ExpectSelected(app, 1);
        Run(app, 0x8014);
        ExpectSelected(app, 2);
        Run(app, 0x8013);
        ExpectSelected(app, 1);
        Run(app, 0x8025);
        ExpectSelected(app, 39);
        Run(app, 0x8028);
        EXPECT_LT(Mark(List(app)), 39);
        Run(app, 0x8026);
        ExpectSelected(app, 0);
        Run(app, 0x8027);
        EXPECT_GT(Mark(List(app)), 0);
        Run(app, 0x8026);
        Run(app, 0x8013);
        ExpectSelected(app, 0);
    });
}

TEST_F(StartKeysTest, InAnEmptyListTheyDoNothing)
{
    OnPage([](ProgramApp& app) {
        for (const UINT command : {0x8013, 0x8014, 0x8025, 0x8026, 0x8027, 0x8028}) {
            Run(app, command);
            EXPECT_EQ(Mark(List(app)), -1) << command;
            EXPECT_EQ(GetFocus(), Box(app)) << command;
        }
    });
}

TEST_F(StartKeysTest, TheProgramTakesTheBackKeyWheneverThePageIsShown)
{
    using Told = std::vector<std::pair<WPARAM, LPARAM>>;
    InProgram([](ProgramApp& app) {
        const Told back = {{27, 0x30003}};
        EXPECT_EQ(Overrides(app, [&] { app.ActivateView(3); }), back);
        EXPECT_EQ(Overrides(app, [&] { app.ActivateView(1); }), Told{});
        EXPECT_EQ(Overrides(app, [&] { app.ActivateView(3); }), back);
    });
}

TEST_F(StartKeysTest, BackErasesInTheSearchBox)
{
    AddPrograms({L"abc", L"abd"});
    OnPage([](ProgramApp& app) {
        Type(app, L"abc");
        ASSERT_EQ(Count(app), 1);
        SendMessageW(app.MainWindow(), WM_HOTKEY, VK_ESCAPE, MAKELPARAM(0, VK_ESCAPE));
        SendMessageW(app.MainWindow(), WM_HOTKEY, VK_ESCAPE, MAKELPARAM(0x1000, VK_ESCAPE));
        MSG posted = {};
        while (PeekMessageW(&posted, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE)) {
            TranslateMessage(&posted); // as the program's loop does
            DispatchMessageW(&posted);
        }
        EXPECT_EQ(Text(Box(app)), L"ab");
        EXPECT_EQ(Count(app), 2);
        ExpectSelected(app, 0);
    });
}

TEST_F(StartKeysTest, ShowingThePageFillsFocusesSelectsPaintsAndTakesBackInThatOrder)
{
    menu.AddMany(3);
    InProgram([](ProgramApp& app) {
        HWND list = List(app);
        const SPY(SendMessageW) send([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
            if (window == list && message == LVM_SETITEMCOUNT) {
                TakeEvents();
                Note("count " + std::to_string(wParam));
            } else if (window == list && (message == LVM_DELETECOLUMN || message == LVM_INSERTCOLUMNW)) {
                Note(message == LVM_DELETECOLUMN ? "column goes" : "column comes");
            } else if (window == list && message == LVM_SETSELECTIONMARK) {
                Note("mark " + std::to_string(lParam));
            } else if (message == WM_USER + 403) {
                Note("back");
            }
            return send.Real(window, message, wParam, lParam);
        });
        const SPY(UpdateWindow) update([&](HWND window) {
            Note(window == list ? "list painted" : "page painted");
            return update.Real(window);
        });
        app.ActivateView(3);
        EXPECT_EQ(TakeEvents(), (Events{"count 3", "mark 0", "column goes", "column comes", "mark 0",
                                        "list painted", "page painted", "back"}));
        ExpectSelected(app, 0);
    });
}
