// The application: its pages, its commands and its periodic refresh.
// profiles: pocketpc smartphone
#include "resources/ids.h"
#include "tests/support/Fatal.h"
#include "tests/ui/ProgramTest.h"

#include <algorithm>

class CAppTest : public ProgramTest
{
  protected:
    static void Run(ProgramApp& app, UINT command) { SendMessageW(app.MainWindow(), WM_COMMAND, command, 0); }

    // How often the tasks were looked for, which every refresh of their page does once.
    size_t Looks() const { return enumWindows.calls.size(); }
};

TEST_F(CAppTest, TheFourPagesComeInOrderWithTheirSoftKeysAndKeys)
{
    std::vector<UINT> tables;
    SPY(LoadAcceleratorsW) load;
    load.instead = [&](HINSTANCE instance, const wchar_t* table) {
        tables.push_back(static_cast<UINT>(reinterpret_cast<UINT_PTR>(table)));
        return load.Real(instance, table);
    };
    InProgram([&](ProgramApp& app) {
        ASSERT_EQ(app.views->Count(), 4u);
        const uint32_t bars[] = {172, 111, 174, 171};
        for (uint32_t i = 0; i < 4; i++) {
            EXPECT_EQ(app.views->At(i)->Id(), static_cast<int32_t>(i + 1));
            EXPECT_EQ(app.views->At(i)->MenuBarId(), bars[i]);
            EXPECT_NE(app.views->At(i)->Accelerators(), nullptr);
        }
        EXPECT_EQ(tables, (std::vector<UINT>{33593, 33594, 137, 33595, 2}));
        EXPECT_EQ(app.ActiveView()->Id(), 1);
    });
}

TEST_F(CAppTest, ACommandForAPageShowsItAndBringsTheProgramForward)
{
    InProgram([&](ProgramApp& app) {
        const std::pair<UINT, int> pages[] = {{CMD_SHOW_SYSINFO, 2},
                                              {CMD_SHOW_START, 3},
                                              {CMD_SHOW_PROCS, 4},
                                              {CMD_SHOW_TASKS, 1},
                                              {CMD_SHOW_TASKS, 1}};
        for (const auto& [command, page] : pages) {
            SPY(SetForegroundWindow) foreground;
            Run(app, command);
            EXPECT_EQ(app.ActiveView()->Id(), page);
            ASSERT_EQ(foreground.calls.size(), 1u);
            EXPECT_EQ(reinterpret_cast<ULONG_PTR>(std::get<0>(foreground.calls[0])),
                      reinterpret_cast<ULONG_PTR>(app.MainWindow()) | 1);
            for (uint32_t i = 0; i < 4; i++) {
                EXPECT_EQ(IsWindowVisible(app.views->At(i)->Window()) != FALSE,
                          page == static_cast<int>(i + 1));
            }
        }
    });
}

TEST_F(CAppTest, TheMainWindowsFocusIsItsPages)
{
    InProgram([&](ProgramApp& app) {
        for (int32_t page = 1; page <= 4; page++) {
            app.ActivateView(page);
            SetFocus(nullptr);
            EXPECT_EQ(GetFocus(), nullptr);
            SetFocus(app.MainWindow());
            const int control = page == 3 ? IDC_SEARCH : IDC_LIST;
            EXPECT_EQ(GetFocus(), GetDlgItem(app.ActiveView()->Window(), control)) << page;
        }
    });
}

TEST_F(CAppTest, CommandsItDoesNotKnowAreIgnored)
{
    AddTask(L"Task");
    InProgram([&](ProgramApp& app) {
        for (const uint32_t command :
             {0u, 1u, 2u, 113u, 114u, 32768u, 32772u, 32800u, 32815u, 32817u, 65535u, 0xFFFFFFFFu}) {
            app.OnCommand(command, 0, 0);
            EXPECT_EQ(app.ActiveView()->Id(), 1) << command;
            EXPECT_EQ(app.dialogs->Count(), 0u) << command;
            EXPECT_EQ(Notice(app), L"") << command;
            EXPECT_TRUE(app.HasMainWindow()) << command;
        }
        Run(app, 113);
        EXPECT_TRUE(IsWindow(listed[0]));
    });
}

TEST_F(CAppTest, HideMinimises)
{
    InProgram([&](ProgramApp& app) {
        SPY(ShowWindow) show;
        show.instead = [](HWND, int) { return TRUE; };
        Run(app, 112);
        ASSERT_EQ(show.calls.size(), 1u);
        EXPECT_EQ(show.calls[0], std::make_tuple(app.MainWindow(), static_cast<int>(SW_MINIMIZE)));
    });
}

TEST_F(CAppTest, ExitEndsTheProgram)
{
    ProgramApp app;
    app.endsAfterBody = false;
    app.body = [&] {
        Run(app, CMD_EXIT);
        EXPECT_FALSE(app.HasMainWindow());
    };
    EXPECT_EQ(Start(app), 0);
}

TEST_F(CAppTest, SettingsIsAPlaceholder)
{
    InProgram([&](ProgramApp& app) {
        SPY(SetTimer) timer;
        Run(app, CMD_SETTINGS);
        EXPECT_EQ(Notice(app), L"Settings cmd");
        ASSERT_EQ(timer.calls.size(), 1u);
        EXPECT_EQ(std::get<2>(timer.calls[0]), 3000u);
        const RECT notice = WindowRect(app.infoWindow->Window());
        const RECT main = WindowRect(app.MainWindow());
        EXPECT_GT(notice.left - main.left, main.right - notice.right) << "at the right";
    });
}

TEST_F(CAppTest, AboutTellsWhatItIs)
{
    InProgram([&](ProgramApp& app) {
        std::wstring text;
        SPY(MessageBoxW) box;
        box.instead = [&](HWND owner, const wchar_t* shown, const wchar_t* caption, UINT) {
            EXPECT_EQ(owner, app.MainWindow());
            EXPECT_STREQ(caption, L"About");
            text = shown;
            return IDOK;
        };
        Run(app, CMD_ABOUT);
        EXPECT_EQ(text.find(L"Quorvane "), 0u);
    });
}

TEST_F(CAppTest, CloseAllAsksEveryTaskAndThenRefreshesThePage)
{
    HWND first = AddTask(L"First");
    HWND second = AddTask(L"Second");
    InProgram([&](ProgramApp& app) {
        listed.insert(listed.begin(), app.MainWindow());
        sleep.calls.clear();
        const size_t before = Looks();
        sleep.instead = [&](DWORD) {
            EXPECT_EQ(Looks(), before + 1) << "only the closing itself comes before the wait";
            listed = {app.MainWindow()};
        };
        Run(app, CMD_CLOSE_ALL);
        EXPECT_EQ(Looks(), before + 2);
        EXPECT_FALSE(IsWindow(first));
        EXPECT_FALSE(IsWindow(second));
        EXPECT_TRUE(app.HasMainWindow());
        ASSERT_EQ(sleep.calls.size(), 1u);
        EXPECT_EQ(std::get<0>(sleep.calls[0]), 1000u);
        EXPECT_EQ(app.Tasks().TaskCount(), 1u);
        listed.clear();
    });
}

TEST_F(CAppTest, CloseAllFromTheLauncherNeitherWaitsNorRefreshes)
{
    HWND task = AddTask(L"First");
    InProgram([&](ProgramApp& app) {
        app.ActivateView(3);
        sleep.calls.clear();
        Run(app, CMD_CLOSE_ALL);
        EXPECT_FALSE(IsWindow(task));
        EXPECT_TRUE(sleep.calls.empty());
        EXPECT_EQ(app.Tasks().TaskCount(), 1u) << "the record of the first showing";
    });
}

TEST_F(CAppTest, TheRefreshTimerRefreshesTheCurrentPage)
{
    InProgram([&](ProgramApp& app) {
        size_t before = Looks();
        SendMessageW(app.MainWindow(), WM_TIMER, 1, 0);
        EXPECT_EQ(Looks(), before + 1);
        for (const WPARAM other : {0, 2, 5, 6, 100}) {
            SendMessageW(app.MainWindow(), WM_TIMER, other, 0);
        }
        EXPECT_EQ(Looks(), before + 1);
        app.ActivateView(3);
        before = Looks();
        SendMessageW(app.MainWindow(), WM_TIMER, 1, 0);
        EXPECT_EQ(Looks(), before) << "the launcher is never refreshed so, nor a page that is hidden";
    });
}

TEST_F(CAppTest, ActivationRefreshesAndStartsTheTimerAndDeactivationStopsIt)
{
    InProgram([&](ProgramApp& app) {
        SPY(SetTimer) timer;
        SPY(KillTimer) kill;
        size_t before = Looks();
        for (const WPARAM how : {WA_ACTIVE, WA_CLICKACTIVE}) {
            timer.calls.clear();
            SendMessageW(app.MainWindow(), WM_ACTIVATE, how, 0);
            EXPECT_EQ(Looks(), ++before);
            ASSERT_EQ(timer.calls.size(), 1u);
            EXPECT_EQ(timer.calls[0],
                      std::make_tuple(app.MainWindow(), UINT_PTR{1}, UINT{7500}, TIMERPROC{nullptr}));
        }
        EXPECT_TRUE(kill.calls.empty());
        SendMessageW(app.MainWindow(), WM_ACTIVATE, WA_INACTIVE, 0);
        EXPECT_EQ(Looks(), before);
        ASSERT_EQ(kill.calls.size(), 1u);
        EXPECT_EQ(kill.calls[0], std::make_tuple(app.MainWindow(), UINT_PTR{1}));
        app.ActivateView(3);
        before = Looks();
        timer.calls.clear();
        SendMessageW(app.MainWindow(), WM_ACTIVATE, WA_ACTIVE, 0);
        EXPECT_EQ(Looks(), before);
        EXPECT_EQ(timer.calls.size(), 1u);
    });
}

TEST_F(CAppTest, AKeyCommandSentToTheWindowIsTaken)
{
    InProgram([&](ProgramApp& app) {
        SKeyCommand command = {198, 2, 3, L"\\a.lnk", L""};
        COPYDATASTRUCT copy = {1, sizeof command, &command};
        EXPECT_EQ(SendMessageW(app.MainWindow(), WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&copy)), TRUE);
        EXPECT_EQ(app.keyPress.vk, 198);
        copy.dwData = 2;
        command.vk = 5;
        EXPECT_EQ(SendMessageW(app.MainWindow(), WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&copy)), TRUE);
        EXPECT_EQ(app.keyPress.vk, 198);
        EXPECT_EQ(app.keyPress.pressAction, 2);
        EXPECT_STREQ(app.keyPress.pressApplication.Buffer(), L"\\a.lnk");
    });
}

TEST_F(CAppTest, ItsEndFreesTheProgramsItKnowsAndTheResources)
{
    SPY(CoInitializeEx) initialise;
    SPY(CoUninitialize) uninitialise;
    ProgramApp app;
    uninitialise.instead = [&] {
        EXPECT_EQ(app.resources, nullptr) << "they hold an object of COM's";
        uninitialise.Real();
    };
    app.body = [&] {
        EXPECT_NE(app.resources, nullptr);
        ASSERT_EQ(initialise.calls.size(), 1u);
        EXPECT_EQ(initialise.calls[0], std::make_tuple(static_cast<void*>(nullptr), DWORD{0}));
        EXPECT_TRUE(uninitialise.calls.empty());
        for (int i = 0; i < 20; i++) {
            app.startPrograms.Programs().Append(new SAppsList);
        }
    };
    Start(app);
    EXPECT_EQ(app.startPrograms.Programs().Count(), 0u);
    EXPECT_EQ(app.resources, nullptr);
    EXPECT_EQ(uninitialise.calls.size(), 1u);
}

TEST_F(CAppTest, AMissingResourceFileIsFatal)
{
    const auto start = [&] {
        SPY(CreateFileW) open;
        open.instead = [&](const wchar_t* path, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security,
                           DWORD disposition, DWORD flags, HANDLE other) -> HANDLE {
            const std::wstring name = path;
            const std::wstring file = L"\\Quorvane.zrs";
            if (name.size() > file.size() && name.substr(name.size() - file.size()) == file) {
                return INVALID_HANDLE_VALUE;
            }
            return open.Real(path, access, share, security, disposition, flags, other);
        };
        InProgram([](ProgramApp&) {});
    };
    EXPECT_FATAL(start(), L"CApp::OnCreate", L"Error opening ZRS resource");
}

TEST_F(CAppTest, AStartByAButtonIsMinimised)
{
    std::vector<int> commands;
    SPY(ShowWindow) show;
    ProgramApp app;
    app.commandLine = L"193 1*1";
    app.body = [&] {
        for (const auto& [window, command] : show.calls) {
            if (window == app.MainWindow()) {
                commands.push_back(command);
            }
        }
    };
    Start(app);
    EXPECT_EQ(commands, (std::vector<int>{SW_SHOWNORMAL, SW_MINIMIZE}));
}
