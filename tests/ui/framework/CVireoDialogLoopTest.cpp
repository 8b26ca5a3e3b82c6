// CVireoDialog: its message loop, its end, and dialogs over dialogs.
#include "resources/ids.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/framework/TestDialog.h"
#include "tests/ui/framework/TestView.h"

class CVireoDialogLoopTest : public UiTest
{
  protected:
    static Events Only(const Events& events, const std::string& part)
    {
        Events found;
        for (const std::string& event : events) {
            if (event.find(part) != std::string::npos) {
                found.push_back(event);
            }
        }
        return found;
    }
};

TEST_F(CVireoDialogLoopTest, TheMainWindowIsDisabledWhileItRuns)
{
    InApp([](TestApp& app) {
        HWND window = nullptr;
        TestDialog dialog("dialog");
        dialog.body = [&] {
            window = dialog.window;
            EXPECT_FALSE(IsWindowEnabled(app.MainWindow()));
            EXPECT_TRUE(IsWindowVisible(dialog.window));
            dialog.End(12);
        };
        EXPECT_EQ(dialog.StartDialog(IDD_INFORMATION, IDB_INFORMATION, 0, true), 12);
        EXPECT_TRUE(IsWindowEnabled(app.MainWindow()));
        EXPECT_FALSE(IsWindow(window));
    });
}

TEST_F(CVireoDialogLoopTest, EndPostsThePrivateMessageWithTheResult)
{
    InApp([](TestApp&) {
        TestDialog dialog("dialog");
        const SPY(EndDialog) endDialog;
        dialog.onInit = [&] {
            const SPY(PostMessageW) post;
            dialog.End(-5);
            ASSERT_EQ(post.calls.size(), 1U);
            EXPECT_EQ(post.calls[0],
                      std::make_tuple(dialog.window, UINT{32769}, static_cast<WPARAM>(-5), LPARAM{0}));
        };
        EXPECT_EQ(dialog.Start(), -5);
        EXPECT_TRUE(endDialog.calls.empty());
    });
}

TEST_F(CVireoDialogLoopTest, OutsideItsLoopEndCallsEndDialog)
{
    const SPY(EndDialog) endDialog([](HWND, INT_PTR) { return TRUE; });
    const SPY(PostMessageW) post;
    TestDialog dialog("dialog");
    dialog.window = GetDesktopWindow();
    dialog.End(6);
    ASSERT_EQ(endDialog.calls.size(), 1U);
    EXPECT_EQ(endDialog.calls[0], std::make_tuple(GetDesktopWindow(), INT_PTR{6}));
    EXPECT_TRUE(post.calls.empty());
}

TEST_F(CVireoDialogLoopTest, TheLoopEndsAfterThePrivateMessageWasHandled)
{
    InApp([](TestApp&) {
        TestDialog dialog("dialog");
        const SPY(DispatchMessageW) dispatch([&](const MSG* message) {
            if (message->hwnd == dialog.window && message->message == WM_APP + 1) {
                Note("dispatched");
            } else if (message->message == TestDialog::messageNoted) {
                Note("too late");
            }
            return dispatch.Real(message);
        });
        const SPY(IsDialogMessageW) ask([](HWND, MSG*) { return FALSE; });
        dialog.onInit = [&] {
            TakeEvents();
            dialog.End(3);
            PostMessageW(dialog.window, TestDialog::messageNoted, 0, 0);
        };
        EXPECT_EQ(dialog.Start(), 3);
        const Events events = TakeEvents();
        EXPECT_EQ(Only(events, "dispatched").size(), 1U);
        EXPECT_TRUE(Only(events, "too late").empty());
    });
}

TEST_F(CVireoDialogLoopTest, AcceleratorsComeBeforeTheDialogAndTheWindow)
{
    InApp([](TestApp&) {
        constexpr UINT watched = TestDialog::messageNoted + 1;
        std::string taker;
        TestDialog dialog("dialog");
        const SPY(TranslateAcceleratorW) accelerate([&](HWND window, HACCEL table, MSG* message) {
            if (message->message == watched) {
                EXPECT_EQ(table, dialog.accelerators);
                Note("accelerators on " + NameOf(window));
                return taker == "accelerators" ? 1 : 0;
            }
            return accelerate.Real(window, table, message);
        });
        const SPY(IsDialogMessageW) ask([&](HWND window, MSG* message) -> BOOL {
            if (message->message == watched) {
                Note("dialog message on " + NameOf(window));
                return taker == "dialog";
            }
            return ask.Real(window, message);
        });
        const SPY(TranslateMessage) translate([&](const MSG* message) {
            if (message->message == watched) {
                Note("translate");
            }
            return translate.Real(message);
        });
        const SPY(DispatchMessageW) dispatch([&](const MSG* message) {
            if (message->message == watched) {
                Note("dispatch");
            }
            return dispatch.Real(message);
        });
        const auto way = [&](uint32_t acceleratorId, const char* taking) {
            taker = taking;
            dialog.onInit = [&] {
                TakeEvents();
                PostMessageW(dialog.window, watched, 0, 0);
                dialog.End(0);
            };
            dialog.StartDialogNoTemplate(0, acceleratorId, true);
            Events events = TakeEvents();
            std::erase_if(events, [](const std::string& event) { return event.find(" On") != event.npos; });
            return events;
        };
        EXPECT_EQ(way(IDA_INFORMATION, "accelerators"), (Events{"accelerators on dialog"}));
        EXPECT_EQ(way(IDA_INFORMATION, "dialog"),
                  (Events{"accelerators on dialog", "dialog message on dialog"}));
        EXPECT_EQ(way(IDA_INFORMATION, ""), (Events{"accelerators on dialog", "dialog message on dialog",
                                                    "translate", "dispatch", "dialog DialogProc 1,0,0"}));
    });
}

TEST_F(CVireoDialogLoopTest, WithoutAcceleratorsItsMessagesAreNotOfferedToAny)
{
    InApp([](TestApp&) {
        TestDialog dialog("dialog");
        const SPY(TranslateAcceleratorW) accelerate;
        dialog.onInit = [&] { dialog.End(0); };
        dialog.Start();
        EXPECT_EQ(dialog.accelerators, nullptr);
        EXPECT_TRUE(accelerate.calls.empty());
    });
}

TEST_F(CVireoDialogLoopTest, AQuitMessageEndsTheDialogAndGoesNoFurther)
{
    bool goesOn = false;
    InApp([&](TestApp& app) {
        TestDialog dialog("dialog");
        dialog.body = [] { PostQuitMessage(3); };
        EXPECT_EQ(dialog.Start(), 0);
        EXPECT_FALSE(TakeQuit());
        EXPECT_TRUE(IsWindowEnabled(app.MainWindow()));
        EXPECT_FALSE(IsWindow(dialog.window));
        goesOn = true;
    });
    EXPECT_TRUE(goesOn);
}

TEST_F(CVireoDialogLoopTest, AFailingQueueEndsTheDialogWithZero)
{
    InApp([](TestApp& app) {
        TestDialog dialog("dialog");
        bool fails = false;
        const SPY(GetMessageW) get([&](MSG* message, HWND window, UINT first, UINT last) -> BOOL {
            return fails ? -1 : get.Real(message, window, first, last);
        });
        dialog.onInit = [&] { fails = true; };
        EXPECT_EQ(dialog.Start(), 0);
        fails = false;
        EXPECT_FALSE(IsWindow(dialog.window));
        EXPECT_TRUE(IsWindowEnabled(app.MainWindow()));
    });
}

TEST_F(CVireoDialogLoopTest, ADialogThatIsStartedAgainHasForgottenItsLastResult)
{
    InApp([](TestApp&) {
        TestDialog dialog("dialog");
        dialog.onInit = [&] { dialog.End(12); };
        EXPECT_EQ(dialog.Start(), 12);
        dialog.onInit = nullptr;
        dialog.body = [&] { DestroyWindow(dialog.window); };
        EXPECT_EQ(dialog.Start(), 0);
    });
}

TEST_F(CVireoDialogLoopTest, TheMainWindowIsEnabledBeforeTheDialogsWindowGoes)
{
    InApp([](TestApp& app) {
        TestDialog dialog("dialog");
        bool enabled = false;
        const SPY(DestroyWindow) destroy([&](HWND window) {
            if (window == dialog.window) {
                enabled = IsWindowEnabled(app.MainWindow()) != FALSE;
            }
            return destroy.Real(window);
        });
        dialog.onInit = [&] { dialog.End(1); };
        dialog.Start();
        EXPECT_TRUE(enabled) << "the system would activate another program's window";
        EXPECT_EQ(GetActiveWindow(), app.MainWindow());
    });
}

TEST_F(CVireoDialogLoopTest, ADialogWhoseWindowGoesEndsWithZero)
{
    InApp([](TestApp& app) {
        TestDialog dialog("dialog");
        dialog.body = [&] { DestroyWindow(dialog.window); };
        EXPECT_EQ(dialog.Start(), 0);
        EXPECT_TRUE(IsWindowEnabled(app.MainWindow()));
    });
}

TEST_F(CVireoDialogLoopTest, ClosingTheMainWindowFromOutsideEndsTheDialogAndTheApplication)
{
    TestApp app;
    app.endsAfterBody = false;
    bool enabledAfter = false;
    app.body = [&] {
        TestDialog dialog("dialog");
        dialog.body = [&] { PostMessageW(app.MainWindow(), WM_CLOSE, 0, 0); };
        EXPECT_EQ(dialog.Start(), 0);
        enabledAfter = IsWindowEnabled(app.MainWindow()) != FALSE;
    };
    EXPECT_EQ(app.Start(), 0);
    EXPECT_TRUE(enabledAfter);
    EXPECT_FALSE(app.HasMainWindow());
    const Events events = TakeEvents();
    EXPECT_EQ(Only(events, "OnDestroy"), (Events{"dialog OnDestroy", "app OnDestroy"}));
}

TEST_F(CVireoDialogLoopTest, AnotherWindowsCloseIsThatWindowsOwn)
{
    InApp([](TestApp& app) {
        HWND other = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr,
                                     app.Instance(), nullptr);
        TestDialog dialog("dialog");
        dialog.body = [&] {
            PostMessageW(other, WM_CLOSE, 0, 0);
            dialog.End(6);
        };
        EXPECT_EQ(dialog.Start(), 6);
        EXPECT_FALSE(IsWindow(other));
        EXPECT_FALSE(TakeQuit());
        EXPECT_TRUE(app.HasMainWindow());
    });
}

TEST_F(CVireoDialogLoopTest, AMainWindowThatGoesDuringADialogEndsTheApplication)
{
    TestApp app;
    app.create = [] {
        TestView::Add(1);
        return true;
    };
    app.endsAfterBody = false;
    app.body = [&] {
        TestDialog dialog("dialog");
        dialog.body = [&] { SendMessageW(app.MainWindow(), WM_CLOSE, 0, 0); };
        EXPECT_EQ(dialog.Start(), 0);
        EXPECT_FALSE(app.HasMainWindow());
    };
    EXPECT_EQ(app.Start(), 0);
    EXPECT_EQ(Only(TakeEvents(), "OnDestroy"),
              (Events{"dialog OnDestroy", "view 1 OnDestroy", "app OnDestroy"}));
}

TEST_F(CVireoDialogLoopTest, ANestedDialogEndsAloneAndEnablesTheMainWindow)
{
    InApp([](TestApp& app) {
        TestDialog outer("outer");
        outer.body = [&] {
            TestDialog inner("inner");
            inner.body = [&] {
                EXPECT_EQ(app.dialogs->Count(), 2U);
                EXPECT_EQ(app.dialogs->At(0), &outer);
                EXPECT_EQ(app.dialogs->At(1), &inner);
                EXPECT_EQ(GetWindow(inner.window, GW_OWNER), app.MainWindow());
                inner.End(7);
            };
            EXPECT_EQ(inner.Start(), 7);
            EXPECT_TRUE(IsWindow(outer.window));
            EXPECT_TRUE(IsWindowEnabled(outer.window));
            EXPECT_TRUE(IsWindowEnabled(app.MainWindow()));
            outer.End(9);
        };
        EXPECT_EQ(outer.Start(), 9);
        EXPECT_TRUE(IsWindowEnabled(app.MainWindow()));
    });
}

// A box disables and enables its owner itself. One that began before the dialog may end before it.
TEST_F(CVireoDialogLoopTest, ABoxAndADialogThatEndInAnyOrderLeaveTheMainWindowEnabled)
{
    InApp([](TestApp& app) {
        EnableWindow(app.MainWindow(), FALSE);
        TestDialog dialog("dialog");
        dialog.body = [&] {
            EnableWindow(app.MainWindow(), TRUE);
            dialog.End(3);
        };
        EXPECT_EQ(dialog.Start(), 3);
        EXPECT_TRUE(IsWindowEnabled(app.MainWindow()));
    });
}

TEST_F(CVireoDialogLoopTest, ADialogThatDestroysItselfWhileItIsInitialisedReturnsZero)
{
    InApp([](TestApp& app) {
        TestDialog dialog("dialog");
        dialog.onInit = [&] { DestroyWindow(dialog.window); };
        EXPECT_EQ(dialog.Start(), 0);
        EXPECT_FALSE(IsWindow(dialog.window));
        EXPECT_EQ(app.dialogs->Count(), 0U);
        EXPECT_TRUE(IsWindowEnabled(app.MainWindow()));
        EXPECT_EQ(Only(TakeEvents(), "OnDestroy"), (Events{"dialog OnDestroy"}));
    });
}

TEST_F(CVireoDialogLoopTest, ADialogThatGoesBeforeItsMenuBarIsMadeIsNeverListedAsOpen)
{
    InApp([](TestApp& app) {
        TestDialog dialog("dialog");
        dialog.onCreateMenuBar = [&](SHMENUBARINFO&) { DestroyWindow(dialog.window); };
        // The shell makes the bar all the same.
        const SPY(SHCreateMenuBar) create([](SHMENUBARINFO*) { return TRUE; });
        EXPECT_EQ(dialog.Start(), 0);
        EXPECT_EQ(app.dialogs->Count(), 0U);
        EXPECT_TRUE(IsWindowEnabled(app.MainWindow()));
        EXPECT_EQ(TakeEvents(), (Events{"dialog OnDestroy"}));
    });
}

TEST_F(CVireoDialogLoopTest, AMainWindowThatGoesWhileADialogIsInitialisedEndsTheApplication)
{
    TestApp app;
    app.body = [&] {
        TestDialog dialog("dialog");
        dialog.onInit = [&] { SendMessageW(app.MainWindow(), WM_CLOSE, 0, 0); };
        EXPECT_EQ(dialog.Start(), 0);
        EXPECT_FALSE(app.HasMainWindow());
    };
    EXPECT_EQ(app.Start(), 0);
    EXPECT_EQ(Only(TakeEvents(), "OnDestroy"), (Events{"dialog OnDestroy", "app OnDestroy"}));
}

TEST_F(CVireoDialogLoopTest, ModalityIsSafeBeforeTheMainWindowIsMadeAndAfterItsEnd)
{
    TestApp app;
    const SPY(EnableWindow) enable;
    const auto useAll = [&] {
        TestDialog dialog("dialog");
        app.BeginModal();
        app.DialogOpened(&dialog);
        app.DialogClosed(&dialog);
        app.DialogClosed(&dialog);
        app.EndAllDialogs();
        app.EndModal();
        app.ShowNotice(L"Nothing to be seen");
        app.HideInfo();
    };
    useAll();
    EXPECT_TRUE(enable.calls.empty());
    app.body = [] {};
    EXPECT_EQ(app.Start(), 0);
    useAll();
    app.ActivateView(1);
    EXPECT_EQ(app.ActiveView(), nullptr);
    EXPECT_TRUE(enable.calls.empty());
}

TEST_F(CVireoDialogLoopTest, EndingAllDialogsEndsTheNewestFirstWithCancel)
{
    InApp([](TestApp& app) {
        TestDialog outer("outer");
        outer.body = [&] {
            TestDialog inner("inner");
            inner.body = [&] {
                const SPY(PostMessageW) post;
                app.EndAllDialogs();
                ASSERT_EQ(post.calls.size(), 2U);
                EXPECT_EQ(post.calls[0], std::make_tuple(inner.window, UINT{32769}, WPARAM{2}, LPARAM{0}));
                EXPECT_EQ(post.calls[1], std::make_tuple(outer.window, UINT{32769}, WPARAM{2}, LPARAM{0}));
            };
            EXPECT_EQ(inner.Start(), 2);
        };
        EXPECT_EQ(outer.Start(), 2);
        EXPECT_EQ(Only(TakeEvents(), "OnDestroy"), (Events{"inner OnDestroy", "outer OnDestroy"}));
    });
}

TEST_F(CVireoDialogLoopTest, WithNestedDialogsTheFirstCloseEndsThemAndTheNextTheApplication)
{
    TestApp app;
    app.endsAfterBody = false;
    bool survived = false;
    app.body = [&] {
        TestDialog outer("outer");
        outer.body = [&] {
            TestDialog inner("inner");
            inner.body = [&] { PostMessageW(app.MainWindow(), WM_CLOSE, 0, 0); };
            EXPECT_EQ(inner.Start(), 0);
        };
        EXPECT_EQ(outer.Start(), 0);
        survived = app.HasMainWindow() && IsWindowEnabled(app.MainWindow());
        EXPECT_FALSE(TakeQuit());
        PostMessageW(app.MainWindow(), WM_CLOSE, 0, 0);
    };
    EXPECT_EQ(app.Start(), 0);
    EXPECT_TRUE(survived);
    EXPECT_FALSE(app.HasMainWindow());
}

TEST_F(CVireoDialogLoopTest, AMainWindowThatGoesDuringNestedDialogsEndsThemAndTheApplication)
{
    TestApp app;
    app.endsAfterBody = false;
    app.body = [&] {
        TestDialog outer("outer");
        outer.body = [&] {
            TestDialog inner("inner");
            inner.body = [&] { SendMessageW(app.MainWindow(), WM_CLOSE, 0, 0); };
            EXPECT_EQ(inner.Start(), 0);
            EXPECT_FALSE(IsWindow(outer.window));
        };
        EXPECT_EQ(outer.Start(), 0);
    };
    EXPECT_EQ(app.Start(), 0);
    EXPECT_FALSE(app.HasMainWindow());
}
