// The application with dialogs open: it shows pages, rebuilds its records and ends under them.
#include "resources/ids.h"
#include "tests/ui/ProgramTest.h"

#include <algorithm>

class CAppDialogTest : public ProgramTest
{
  protected:
    static constexpr UINT report = CMD_APPLICATION_INFO;
    static constexpr UINT windowsList = CMD_WINDOWS_LIST;

    static void Run(ProgramApp& app, UINT command) { SendMessageW(app.MainWindow(), WM_COMMAND, command, 0); }

    // Opens the dialog of a command, or the windows list with a report over it for 0, and runs the step
    // inside the innermost loop. What the step starts must end the dialogs.
    void Under(UINT command, const std::function<void(ProgramApp&)>& step,
               const std::function<void(ProgramApp&)>& after)
    {
        AddTask(L"First");
        AddTask(L"Second");
        ProgramApp app;
        bool returned = false;
        app.endsAfterBody = false;
        app.body = [&] {
            app.Later([&] {
                if (command != 0) {
                    ASSERT_EQ(app.dialogs->Count(), 1u);
                    step(app);
                    return;
                }
                app.Later([&] {
                    ASSERT_EQ(app.dialogs->Count(), 2u);
                    step(app);
                });
                SendMessageW(app.dialogs->At(0)->Window(), WM_COMMAND, CMD_WINDOW_INFO, 0);
            });
            Run(app, command != 0 ? command : windowsList);
            returned = true;
            after(app);
            if (app.HasMainWindow()) {
                DestroyWindow(app.MainWindow());
            }
        };
        EXPECT_EQ(Start(app), 0);
        EXPECT_TRUE(returned);
        for (HWND task : listed) {
            EXPECT_TRUE(IsWindow(task));
            DestroyWindow(task);
        }
        listed.clear();
    }
};

static const UINT dialogs[] = {CMD_APPLICATION_INFO, CMD_WINDOWS_LIST, 0};

TEST_F(CAppDialogTest, ASentCloseEndsDialogsAndProgram)
{
    for (const UINT command : dialogs) {
        Under(
            command, [](ProgramApp& app) { SendMessageW(app.MainWindow(), WM_CLOSE, 0, 0); },
            [](ProgramApp& app) { EXPECT_FALSE(app.HasMainWindow()); });
    }
}

TEST_F(CAppDialogTest, ExitEndsDialogsAndProgram)
{
    for (const UINT command : dialogs) {
        Under(
            command, [](ProgramApp& app) { app.OnCommand(CMD_EXIT, 0, 0); },
            [](ProgramApp& app) { EXPECT_FALSE(app.HasMainWindow()); });
    }
}

TEST_F(CAppDialogTest, APostedCloseEndsTheDialogAndTheProgramAfterIt)
{
    for (const UINT command : {report, windowsList}) {
        AddTask(L"First");
        ProgramApp app;
        bool returned = false;
        app.endsAfterBody = false;
        app.body = [&] {
            app.Later([&] { PostMessageW(app.MainWindow(), WM_CLOSE, 0, 0); });
            Run(app, command);
            returned = true;
            EXPECT_EQ(app.dialogs->Count(), 0u);
            EXPECT_TRUE(app.HasMainWindow()) << "it goes when the main loop reads the request";
        };
        EXPECT_EQ(Start(app), 0);
        EXPECT_TRUE(returned);
        EXPECT_FALSE(app.HasMainWindow());
        EndTask(listed[0]);
        listed.clear();
    }
}

TEST_F(CAppDialogTest, APostedCloseEndsNestedDialogs)
{
    Under(
        0, [](ProgramApp& app) { PostMessageW(app.MainWindow(), WM_CLOSE, 0, 0); },
        [](ProgramApp& app) {
            EXPECT_TRUE(app.HasMainWindow());
            EXPECT_EQ(app.dialogs->Count(), 0u);
        });
}

TEST_F(CAppDialogTest, ShowingAPageEndsEveryDialogFirst)
{
    for (const UINT command : dialogs) {
        Under(
            command,
            [](ProgramApp& app) {
                Events order;
                Events expected;
                for (uint32_t i = app.dialogs->Count(); i > 0; i--) {
                    NameWindow(app.dialogs->At(i - 1)->Window(), "dialog " + std::to_string(i));
                    expected.push_back("end of dialog " + std::to_string(i));
                }
                expected.insert(expected.end(), {"soft keys of the page", "front"});
                const SPY(PostMessageW) post([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
                    if (message == 0x8001) {
                        EXPECT_EQ(wParam, 2u);
                        order.push_back("end of " + NameOf(window));
                    }
                    return post.Real(window, message, wParam, lParam);
                });
                const SPY(SHCreateMenuBar) bar([&](SHMENUBARINFO* info) {
                    order.emplace_back("soft keys of the page");
                    return bar.Real(info);
                });
                const SPY(SetForegroundWindow) front([&](HWND window) {
                    order.emplace_back("front");
                    return front.Real(window);
                });
                app.ShowPage(4);
                EXPECT_EQ(order, expected);
                EXPECT_EQ(app.ActiveView()->Id(), 4);
            },
            [](ProgramApp& app) {
                EXPECT_EQ(app.dialogs->Count(), 0u);
                EXPECT_EQ(app.ActiveView()->Id(), 4);
                EXPECT_TRUE(IsWindowEnabled(app.MainWindow()));
            });
    }
}

TEST_F(CAppDialogTest, RecordsRebuiltUnderADialogDoNoHarm)
{
    for (const UINT command : dialogs) {
        Under(
            command,
            [this](ProgramApp& app) {
                const std::vector<HWND> all = listed;
                listed.clear();
                SendMessageW(app.MainWindow(), WM_TIMER, 1, 0);
                EXPECT_EQ(app.Tasks().TaskCount(), 0u);
                listed = all;
                SendMessageW(app.MainWindow(), WM_ACTIVATE, WA_ACTIVE, 0);
                app.EndAllDialogs();
            },
            [](ProgramApp& app) {
                EXPECT_EQ(app.Tasks().TaskCount(), 2u);
                EXPECT_EQ(app.dialogs->Count(), 0u);
            });
    }
}

TEST_F(CAppDialogTest, ATaskThatEndsUnderADialogDoesNoHarm)
{
    for (const UINT command : {windowsList, 0u}) {
        HWND late = AddTask(L"Late");
        std::rotate(listed.begin(), listed.end() - 1, listed.end());
        Under(
            command,
            [&](ProgramApp& app) {
                EndTask(late);
                Unlist(late);
                SendMessageW(app.dialogs->At(0)->Window(), WM_COMMAND, CMD_WINDOW_INFO, 0);
                EXPECT_EQ(Notice(app), L"Window is no longer exists.");
                app.EndAllDialogs();
            },
            [](ProgramApp& app) { EXPECT_EQ(app.dialogs->Count(), 0u); });
    }
}
