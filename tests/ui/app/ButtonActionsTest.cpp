// What a pressed or held button does: which action is taken, starting, showing, turning and locking.
#include "tests/ui/app/KeyProgramTest.h"

class ButtonActionsTest : public KeyProgramTest
{
  protected:
    std::vector<std::wstring> started;
    BOOL starts = TRUE;
    SPY(ShellExecuteEx) execute;
    SPY(ChangeDisplaySettingsEx) turn;
    SPY(keybd_event) press;

    ButtonActionsTest()
    {
        execute.instead = [this](SHELLEXECUTEINFOW* info) {
            EXPECT_EQ(info->cbSize, sizeof(SHELLEXECUTEINFOW));
            EXPECT_EQ(info->fMask, 0x40u);
            EXPECT_EQ(info->hwnd, nullptr);
            EXPECT_EQ(info->lpVerb, nullptr);
            EXPECT_STREQ(info->lpParameters, L"");
            EXPECT_EQ(info->lpDirectory, nullptr);
            EXPECT_EQ(info->nShow, 5);
            started.emplace_back(info->lpFile);
            return starts;
        };
        turn.instead = [](const wchar_t*, DEVMODEW*, HWND, DWORD, void*) { return LONG{0}; };
        press.instead = [](BYTE, BYTE, DWORD, ULONG_PTR) {};
    }

    static void Perform(KeyProgram& app, WPARAM length, int32_t pressAction, int32_t holdAction = 0)
    {
        app.keyPress.pressAction = pressAction;
        app.keyPress.holdAction = holdAction;
        SendMessageW(app.MainWindow(), 32868, length, 0);
    }

    // Nothing that an action could have done.
    void ExpectNothing(const KeyProgram& app)
    {
        EXPECT_TRUE(started.empty());
        EXPECT_TRUE(turn.calls.empty());
        EXPECT_TRUE(press.calls.empty());
        EXPECT_EQ(TakeEvents(), std::vector<std::string>{});
        EXPECT_EQ(Notice(app), L"");
        EXPECT_EQ(app.ActiveView()->Id(), 1);
    }
};

TEST_F(ButtonActionsTest, NumbersThatAreNoActionsDoNothing)
{
    HWND task = AddTask(L"Task");
    On(Platform::PocketPC, [&](KeyProgram& app) {
        SPY(GetForegroundWindow) foreground([=] { return task; });
        TakeEvents();
        for (const int32_t action :
             {0, 1, 13, 14, 100, -1, -2, 2147483647, -2147483647 - 1, 65538, 0x10003}) {
            Perform(app, 1, action);
            Perform(app, 2, 0, action);
            ExpectNothing(app);
        }
        EXPECT_TRUE(IsWindow(task));
    });
}

TEST_F(ButtonActionsTest, OnlyPressAndHoldArePerformed)
{
    HWND task = AddTask(L"Task");
    On(Platform::PocketPC, [&](KeyProgram& app) {
        SPY(GetForegroundWindow) foreground([=] { return task; });
        TakeEvents();
        for (const WPARAM length : {WPARAM{0}, WPARAM{3}, WPARAM{11}, ~WPARAM{0}}) {
            for (int32_t action = 2; action <= 12; action++) {
                Perform(app, length, action, action);
            }
            ExpectNothing(app);
        }
        EXPECT_TRUE(IsWindow(task));
    });
}

TEST_F(ButtonActionsTest, APressAndAHoldHaveActionsOfTheirOwn)
{
    On(Platform::PocketPC, [&](KeyProgram& app) {
        app.keyPress.pressApplication = L"\\press.lnk";
        app.keyPress.holdApplication = L"\\hold.lnk";
        Perform(app, 1, 2, 12);
        EXPECT_EQ(started, std::vector<std::wstring>{L"\\press.lnk"});
        Perform(app, 2, 12, 2);
        EXPECT_EQ(started, (std::vector<std::wstring>{L"\\press.lnk", L"\\hold.lnk"}));
        EXPECT_TRUE(press.calls.empty());
        Perform(app, 2, 2, 12);
        EXPECT_EQ(press.calls.size(), 2u);
        EXPECT_EQ(started.size(), 2u);
    });
}

TEST_F(ButtonActionsTest, AnApplicationThatDoesNotStartIsNotTold)
{
    On(Platform::PocketPC, [&](KeyProgram& app) {
        starts = FALSE;
        for (const wchar_t* path : {L"\\gone.lnk", L"", L"no path at all"}) {
            app.keyPress.pressApplication = path;
            Perform(app, 1, 2);
        }
        EXPECT_EQ(started, (std::vector<std::wstring>{L"\\gone.lnk", L"", L"no path at all"}));
        EXPECT_EQ(Notice(app), L"");
        EXPECT_EQ(app.dialogs->Count(), 0u);
    });
}

TEST_F(ButtonActionsTest, TheNextPressMayComeWhileAnApplicationStarts)
{
    On(Platform::PocketPC, [&](KeyProgram& app) {
        app.keyPress.pressApplication = std::wstring(200, L'a').c_str();
        execute.instead = [&](SHELLEXECUTEINFOW* info) {
            app.HandOver({198, 2, 2, L"\\b.lnk", L""});
            started.emplace_back(info->lpFile);
            return TRUE;
        };
        Perform(app, 1, 2);
        EXPECT_EQ(started, std::vector<std::wstring>{std::wstring(200, L'a')});
        EXPECT_STREQ(app.keyPress.pressApplication.Buffer(), L"\\b.lnk");
    });
}

TEST_F(ButtonActionsTest, APageIsShownAndTheProgramComesForward)
{
    On(Platform::PocketPC, [&](KeyProgram& app) {
        const std::pair<int32_t, int32_t> pages[] = {{4, 4}, {5, 2}, {6, 3}, {3, 1}, {3, 1}};
        for (const auto& [action, page] : pages) {
            std::vector<std::string> order;
            SPY(ShowWindow) show;
            show.instead = [&](HWND window, int command) {
                if (window == app.MainWindow()) {
                    order.push_back("show " + std::to_string(command) + " on page " +
                                    std::to_string(app.ActiveView()->Id()));
                }
                return show.Real(window, command);
            };
            SPY(SetForegroundWindow)
            foreground([&](HWND window) {
                order.push_back("front on page " + std::to_string(app.ActiveView()->Id()));
                EXPECT_EQ(reinterpret_cast<ULONG_PTR>(window),
                          reinterpret_cast<ULONG_PTR>(app.MainWindow()) | 1);
                return TRUE;
            });
            const int32_t before = app.ActiveView()->Id();
            Perform(app, 1, action);
            EXPECT_EQ(app.ActiveView()->Id(), page);
            EXPECT_EQ(order, (std::vector<std::string>{"show 5 on page " + std::to_string(before),
                                                       "front on page " + std::to_string(page)}));
        }
    });
}

TEST_F(ButtonActionsTest, DialogsAreEndedBeforeThePageIsShown)
{
    AddTask(L"Task");
    On(Platform::PocketPC, [&](KeyProgram& app) {
        std::vector<INT_PTR> results;
        app.Later([&] {
            ASSERT_EQ(app.dialogs->Count(), 1u);
            app.Later([&] {
                ASSERT_EQ(app.dialogs->Count(), 2u);
                SPY(ShowWindow) show;
                show.instead = [&](HWND window, int command) {
                    if (window == app.MainWindow()) {
                        // Their ends are on their way already, the newest first.
                        MSG message = {};
                        EXPECT_TRUE(PeekMessageW(&message, nullptr, 0x8001, 0x8001, PM_NOREMOVE));
                        EXPECT_EQ(message.hwnd, app.dialogs->At(1)->Window());
                        EXPECT_EQ(message.wParam, 2u);
                    }
                    return show.Real(window, command);
                };
                Perform(app, 1, 4);
                EXPECT_EQ(app.ActiveView()->Id(), 4);
                EXPECT_EQ(app.dialogs->Count(), 2u);
            });
            SendMessageW(app.dialogs->At(0)->Window(), WM_COMMAND, CMD_WINDOW_INFO, 0);
        });
        SendMessageW(app.MainWindow(), WM_COMMAND, CMD_WINDOWS_LIST, 0);
        EXPECT_EQ(app.dialogs->Count(), 0u);
        EXPECT_EQ(app.ActiveView()->Id(), 4);
    });
}

TEST_F(ButtonActionsTest, BothRotationsTurnTheScreenAlike)
{
    On(Platform::PocketPC, [&](KeyProgram& app) {
        DWORD orientation = 0;
        turn.instead = [&](const wchar_t*, DEVMODEW* mode, HWND, DWORD flags, void*) {
            if (flags == 2) {
                mode->dmDisplayOrientation = orientation;
            } else {
                orientation = mode->dmDisplayOrientation;
            }
            return LONG{0};
        };
        for (const WPARAM length : {1, 2}) {
            for (const int32_t action : {10, 11}) {
                Perform(app, length, action, action);
                EXPECT_EQ(orientation, 4u);
                Perform(app, length, action, action);
                EXPECT_EQ(orientation, 0u);
            }
        }
        Perform(app, 1, 10);
        Perform(app, 1, 11);
        EXPECT_EQ(orientation, 0u);
        EXPECT_EQ(turn.calls.size(), 20u);
    });
}

TEST_F(ButtonActionsTest, LockingPressesTheDevicesKeys)
{
    for (const auto& [device, count] :
         {std::pair{Platform::PocketPC, 2u}, {Platform::Smartphone, 4u}, {Platform::Unknown, 2u}}) {
        On(device, [&, keys = count](KeyProgram& app) {
            press.calls.clear();
            Perform(app, 1, 12);
            ASSERT_EQ(press.calls.size(), keys);
            EXPECT_EQ(std::get<0>(press.calls[0]), 0x85);
        });
    }
}
