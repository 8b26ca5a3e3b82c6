// What a button closes: the application in front, all of them, or all but that one.
#include "tests/ui/app/KeyProgramTest.h"

class ButtonCloseTest : public KeyProgramTest
{
  protected:
    using Events = std::vector<std::string>;

    HWND front = nullptr;
    SPY(GetForegroundWindow) foreground;

    ButtonCloseTest()
    {
        foreground.instead = [this] { return front; };
    }

    static void Perform(KeyProgram& app, int32_t action)
    {
        app.keyPress.pressAction = action;
        SendMessageW(app.MainWindow(), 32868, 1, 0);
    }

    // A window that this one owns.
    static HWND Owned(HWND owner)
    {
        HWND window = CreateWindowExW(0, L"STATIC", L"Owned", WS_POPUP | WS_VISIBLE, 0, 2000, 5, 5, owner,
                                      nullptr, nullptr, nullptr);
        EXPECT_EQ(GetWindow(window, GW_OWNER), owner);
        return window;
    }

    void ExpectForbidden(KeyProgram& app)
    {
        app.HideInfo();
        EXPECT_EQ(Notice(app), L"");
        otherTimers.clear();
        Perform(app, 7);
        EXPECT_EQ(Notice(app), L"It's forbidden to close this window");
        EXPECT_EQ(otherTimers, std::vector<UINT>{3000});
    }
};

TEST_F(ButtonCloseTest, TheApplicationInFrontIsClosed)
{
    HWND task = AddTask(L"Task");
    HWND other = AddTask(L"Other");
    On(Platform::PocketPC, [&](KeyProgram& app) {
        front = task;
        TakeEvents();
        Perform(app, 7);
        EXPECT_FALSE(IsWindow(task));
        EXPECT_TRUE(IsWindow(other));
        EXPECT_EQ(TakeEvents(), Events{}) << "it waits for nothing";
        EXPECT_EQ(Notice(app), L"");
        EXPECT_EQ(app.Tasks().TaskCount(), 2u) << "the page is not refreshed";
    });
}

TEST_F(ButtonCloseTest, AnUntitledOneIsClosedToo)
{
    HWND task = AddTask(L"");
    On(Platform::PocketPC, [&](KeyProgram& app) {
        front = task;
        Perform(app, 7);
        EXPECT_FALSE(IsWindow(task));
    });
}

TEST_F(ButtonCloseTest, TheTopmostOwnerOfTheWindowInFrontIsClosed)
{
    HWND task = AddTask(L"Task");
    HWND box = Owned(task);
    HWND boxOfBox = Owned(box);
    On(Platform::PocketPC, [&](KeyProgram& app) {
        front = boxOfBox;
        std::vector<HWND> closed;
        SPY(SendMessageW) send;
        send.instead = [&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
            if (message == WM_CLOSE) {
                closed.push_back(window);
                return LRESULT{0};
            }
            return send.Real(window, message, wParam, lParam);
        };
        Perform(app, 7);
        EXPECT_EQ(closed, std::vector<HWND>{task});
    });
}

TEST_F(ButtonCloseTest, WithoutAWindowInFrontNothingIsClosed)
{
    HWND task = AddTask(L"Task");
    On(Platform::PocketPC, [&](KeyProgram& app) {
        Perform(app, 7);
        EXPECT_TRUE(IsWindow(task));
        EXPECT_EQ(Notice(app), L"");
    });
}

TEST_F(ButtonCloseTest, TheShellsWindowsAreNotClosed)
{
    for (const wchar_t* className :
         {L"DesktopExplorerWindow", L"desktopexplorerwindow", L"Explore", L"EXPLORE"}) {
        HWND home = AddTask(L"Home", className);
        HWND box = Owned(home);
        On(Platform::PocketPC, [&](KeyProgram& app) {
            front = home;
            ExpectForbidden(app);
            front = box;
            ExpectForbidden(app);
            EXPECT_TRUE(IsWindow(home));
        });
        EndTask(home);
        Unlist(home);
        UnregisterClassW(className, GetModuleHandleW(nullptr));
    }
    HWND similar = AddTask(L"Similar", L"Explorer");
    On(Platform::PocketPC, [&](KeyProgram& app) {
        front = similar;
        Perform(app, 7);
        EXPECT_FALSE(IsWindow(similar));
    });
}

TEST_F(ButtonCloseTest, TheProgramDoesNotCloseItself)
{
    On(Platform::PocketPC, [&](KeyProgram& app) {
        front = app.MainWindow();
        ExpectForbidden(app);
        front = app.infoWindow->Window();
        ExpectForbidden(app);
        EXPECT_TRUE(app.HasMainWindow());
    });
}

TEST_F(ButtonCloseTest, NorByAnyOfItsDialogs)
{
    AddTask(L"Task");
    bool returned = false;
    On(Platform::PocketPC, [&](KeyProgram& app) {
        app.Later([&] {
            ASSERT_EQ(app.dialogs->Count(), 1u);
            front = app.dialogs->At(0)->Window();
            ExpectForbidden(app);
            EXPECT_TRUE(IsWindow(front));
            app.EndAllDialogs();
        });
        SendMessageW(app.MainWindow(), WM_COMMAND, CMD_WINDOWS_LIST, 0);
        returned = true;
    });
    EXPECT_TRUE(returned);
}

TEST_F(ButtonCloseTest, CloseAllIsTheProgramsOwnCommand)
{
    HWND task = AddTask(L"Task");
    On(Platform::PocketPC, [&](KeyProgram& app) {
        front = task;
        TakeEvents();
        std::vector<UINT> commands;
        SPY(SendMessageW) send;
        send.instead = [&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
            if (window == app.MainWindow() && message == WM_COMMAND) {
                commands.push_back(static_cast<UINT>(wParam));
                EXPECT_EQ(Notice(app), L"") << "told before it was done";
            }
            return send.Real(window, message, wParam, lParam);
        };
        Perform(app, 8);
        EXPECT_EQ(commands, std::vector<UINT>{0x8030});
        EXPECT_FALSE(IsWindow(task));
        EXPECT_EQ(TakeEvents(), Events{"sleep 1000"});
        EXPECT_EQ(Notice(app), L"Done");
        EXPECT_TRUE(app.HasMainWindow());
    });
}

TEST_F(ButtonCloseTest, CloseAllOnTheLauncherNeitherWaitsNorRefreshes)
{
    HWND task = AddTask(L"Task");
    On(Platform::PocketPC, [&](KeyProgram& app) {
        app.ActivateView(3);
        TakeEvents();
        for (const int32_t action : {8, 9}) {
            app.HideInfo();
            Perform(app, action);
            EXPECT_EQ(TakeEvents(), Events{});
            EXPECT_EQ(Notice(app), L"Done");
        }
        EXPECT_FALSE(IsWindow(task));
    });
}

TEST_F(ButtonCloseTest, CloseOthersSparesTheProgramInFrontAndItself)
{
    HWND first = AddTask(L"First");
    HWND inFront = AddTask(L"In front");
    HWND last = AddTask(L"Last");
    HWND home = AddTask(L"Home", L"DesktopExplorerWindow");
    HWND untitled = AddTask(L"");
    On(Platform::PocketPC, [&](KeyProgram& app) {
        listed.insert(listed.begin(), app.MainWindow());
        front = inFront;
        TakeEvents();
        sleep.instead = [&](DWORD ms) {
            events.push_back("sleep " + std::to_string(ms));
            std::erase(listed, first);
            std::erase(listed, last);
        };
        otherTimers.clear();
        Perform(app, 9);
        EXPECT_FALSE(IsWindow(first));
        EXPECT_FALSE(IsWindow(last));
        EXPECT_TRUE(IsWindow(inFront));
        EXPECT_TRUE(IsWindow(home));
        EXPECT_TRUE(IsWindow(untitled));
        EXPECT_TRUE(app.HasMainWindow());
        EXPECT_EQ(TakeEvents(), Events{"sleep 1000"});
        EXPECT_EQ(app.Tasks().TaskCount(), 3u) << "refreshed behind the wait";
        EXPECT_EQ(Notice(app), L"Done");
        EXPECT_EQ(otherTimers, std::vector<UINT>{3000});
        listed.erase(listed.begin());
    });
}

TEST_F(ButtonCloseTest, CloseOthersSparesTheOwnerOfTheBoxInFront)
{
    HWND inFront = AddTask(L"In front");
    HWND other = AddTask(L"Other");
    HWND box = Owned(Owned(inFront));
    listed.push_back(box);
    On(Platform::PocketPC, [&](KeyProgram& app) {
        front = box;
        Perform(app, 9);
        EXPECT_TRUE(IsWindow(inFront));
        EXPECT_TRUE(IsWindow(box));
        EXPECT_FALSE(IsWindow(other));
    });
}

TEST_F(ButtonCloseTest, CloseOthersWithoutAWindowInFrontClosesAll)
{
    HWND first = AddTask(L"First");
    HWND second = AddTask(L"Second");
    On(Platform::PocketPC, [&](KeyProgram& app) {
        Perform(app, 9);
        EXPECT_FALSE(IsWindow(first));
        EXPECT_FALSE(IsWindow(second));
        EXPECT_EQ(Notice(app), L"Done");
    });
}

TEST_F(ButtonCloseTest, CloseOthersWithTheProgramInFrontClosesAll)
{
    HWND task = AddTask(L"First");
    On(Platform::PocketPC, [&](KeyProgram& app) {
        front = app.MainWindow();
        Perform(app, 9);
        EXPECT_FALSE(IsWindow(task));
        EXPECT_TRUE(app.HasMainWindow());
    });
}

// An application that is asked to close takes the program's window with it.
TEST_F(ButtonCloseTest, TheProgramMayEndWhileOthersAreClosed)
{
    for (const int32_t action : {7, 8, 9}) {
        HWND task = AddTask(L"Task");
        HWND inFront = action == 7 ? task : nullptr;
        On(Platform::PocketPC, [&](KeyProgram& app) {
            front = inFront;
            SPY(SendMessageW) send;
            send.instead = [&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
                if (window == task && message == WM_CLOSE) {
                    DestroyWindow(app.MainWindow());
                    return LRESULT{0};
                }
                return send.Real(window, message, wParam, lParam);
            };
            TakeEvents();
            Perform(app, action);
            EXPECT_FALSE(app.HasMainWindow());
            EXPECT_EQ(TakeEvents(), Events{}) << "no wait for a page that has gone";
        });
        EndTask(task);
        Unlist(task);
    }
}

// While an application is asked to close, another button may be pressed: this action goes on as it was.
TEST_F(ButtonCloseTest, AnotherPressMayComeWhileOthersAreClosed)
{
    HWND task = AddTask(L"Task");
    HWND other = AddTask(L"Other");
    On(Platform::PocketPC, [&](KeyProgram& app) {
        SPY(SendMessageW) send;
        send.instead = [&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
            if (window == task && message == WM_CLOSE) {
                app.HandOver({198, 1, 1, L"", L""});
            }
            return send.Real(window, message, wParam, lParam);
        };
        TakeEvents();
        Perform(app, 9);
        EXPECT_FALSE(IsWindow(other));
        EXPECT_EQ(TakeEvents(), (Events{"action 1 0", "sleep 1000"}));
        EXPECT_EQ(app.keyPress.vk, 198);
        EXPECT_EQ(Notice(app), L"Done");
    });
}
