// The processes page: what may happen while a command of it asks or shows something.
// profiles: pocketpc smartphone
#include "tests/ui/pages/procs/ProcsTest.h"

class ProcTurnsTest : public ProcsTest
{
  protected:
    using Step = std::function<void(ProgramApp&)>;

    static constexpr int boxes = 3; // the question and, of a process that hangs, two more
    static constexpr DWORD markedId = firstId + 2;

    std::vector<std::wstring> asked;
    std::vector<DWORD> opened;
    std::vector<HWND> closed; // windows that were asked to close
    int terminated = 0;
    SPY(MessageBoxW) box;
    SPY(OpenProcess) open;
    SPY(PostMessageW) post;
    SPY(GetWindowThreadProcessId) owner;
    SPY(WaitForSingleObject) wait;
    SPY(GetExitCodeProcess) exitCode;
    SPY(TerminateProcess) terminate;

    ProcTurnsTest()
    {
        AddProcesses(5);
        open.instead = [this](DWORD, BOOL, DWORD id) {
            opened.push_back(id);
            return CreateEventW(nullptr, TRUE, FALSE, nullptr); // any handle; it is closed by the program
        };
        post.instead = [this](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
            if (message != WM_CLOSE) {
                return post.Real(window, message, wParam, lParam);
            }
            closed.push_back(window);
            return TRUE;
        };
        wait.instead = [](HANDLE, DWORD) -> DWORD { return WAIT_TIMEOUT; };
        exitCode.instead = [this](HANDLE, DWORD* code) {
            *code = terminated ? 0 : 259;
            return TRUE;
        };
        terminate.instead = [this](HANDLE, UINT) {
            terminated++;
            return TRUE;
        };
    }

    // The listed windows belong to processes, in order, from firstId on.
    void AddWindowsOfProcesses(int count)
    {
        for (int i = 0; i < count; i++) {
            AddTask((L"Window " + std::to_wstring(i + 1)).c_str());
        }
        owner.instead = [this](HWND window, DWORD* processId) {
            const DWORD thread = owner.Real(window, processId);
            for (size_t i = 0; i < listed.size(); i++) {
                if (listed[i] == window) {
                    *processId = firstId + static_cast<DWORD>(i);
                }
            }
            return thread;
        };
    }

    // Ends the third process with all three boxes answered Yes; the step happens while one of them is open.
    void EndMarked(ProgramApp& app, int whichBox, const Step& step)
    {
        asked.clear();
        opened.clear();
        closed.clear();
        terminated = 0;
        box.instead = [this, &app, whichBox, step](HWND, const wchar_t* text, const wchar_t*, UINT) {
            asked.emplace_back(text);
            if (static_cast<int>(asked.size()) == whichBox) {
                step(app);
            }
            return IDYES;
        };
        app.ActivateView(4);
        Select(app, 2);
        Run(app, CMD_END_PROCESS);
    }

    void ExpectTheMarkedOneEnded(HWND itsWindow)
    {
        ASSERT_EQ(asked.size(), 3u);
        EXPECT_EQ(asked[0], L"End p3.exe?");
        EXPECT_EQ(opened, std::vector<DWORD>{markedId});
        EXPECT_EQ(closed, std::vector<HWND>{itsWindow});
        EXPECT_EQ(terminated, 1);
    }

    static void TimerRefreshes(ProgramApp& app) { SendMessageW(app.MainWindow(), WM_TIMER, 1, 0); }
};

TEST_F(ProcTurnsTest, ARefreshUnderABoxDoesNotChangeWhoIsEnded)
{
    AddWindowsOfProcesses(5);
    const std::vector<ScriptedProcess> before = system.processes;
    const Step changes[] = {
        [this](ProgramApp&) { std::swap(system.processes[2], system.processes[0]); },
        [this](ProgramApp&) { system.processes.erase(system.processes.begin()); },
        [this](ProgramApp&) { system.processes.erase(system.processes.begin() + 2, system.processes.end()); },
        [this](ProgramApp&) { AddProcesses(20); },
    };
    OnPage([&](ProgramApp& app) {
        for (int which = 1; which <= boxes; which++) {
            for (const Step& change : changes) {
                system.processes = before;
                EndMarked(app, which, [&](ProgramApp& running) {
                    change(running);
                    TimerRefreshes(running);
                    EXPECT_EQ(Page(running).ProcessCount(), system.processes.size());
                });
                ExpectTheMarkedOneEnded(listed[2]);
                EXPECT_EQ(Page(app).ProcessCount(), system.processes.size());
                Run(app, CMD_SHOW_TASKS);
            }
        }
    });
}

TEST_F(ProcTurnsTest, AnotherRowMarkedUnderABoxDoesNotChangeWhoIsEnded)
{
    AddWindowsOfProcesses(5);
    OnPage([&](ProgramApp& app) {
        for (int which = 1; which <= boxes; which++) {
            EndMarked(app, which, [](ProgramApp& running) { Select(running, 4); });
            ExpectTheMarkedOneEnded(listed[2]);
        }
    });
}

TEST_F(ProcTurnsTest, APageSwitchedUnderABoxStaysSwitched)
{
    AddWindowsOfProcesses(5);
    OnPage([&](ProgramApp& app) {
        for (int which = 1; which <= boxes; which++) {
            for (const int page : {1, 2, 3}) {
                EndMarked(app, which, [page](ProgramApp& running) { running.ActivateView(page); });
                ExpectTheMarkedOneEnded(listed[2]);
                EXPECT_EQ(app.ActiveView()->Id(), page);
                EXPECT_FALSE(IsWindowVisible(Page(app).Window()));
            }
        }
    });
}

TEST_F(ProcTurnsTest, OnceTheMainWindowHasGoneNothingIsAskedOrTouched)
{
    for (int which = 1; which <= boxes; which++) {
        size_t snapshots = 0;
        OnPage([&](ProgramApp& app) {
            EndMarked(app, which, [&](ProgramApp& running) {
                DestroyWindow(running.MainWindow());
                snapshots = system.snapshots.size();
            });
            EXPECT_FALSE(app.HasMainWindow());
        });
        EXPECT_EQ(asked.size(), static_cast<size_t>(which));
        EXPECT_EQ(opened.size(), which == 1 ? 0u : 1u);
        EXPECT_EQ(terminated, 0);
        EXPECT_EQ(system.snapshots.size(), snapshots);
    }
}

TEST_F(ProcTurnsTest, TheMainWindowMayCloseUnderAReportOrTheWindowsList)
{
    for (const UINT command : {CMD_PROCESS_DETAILS, CMD_WINDOWS_LIST}) {
        const int result = InProgram([&](ProgramApp& app) {
            bool seen = false;
            app.ActivateView(4);
            app.Later([&] {
                seen = true;
                EXPECT_EQ(app.dialogs->Count(), 1u);
                DestroyWindow(app.MainWindow());
            });
            Run(app, command);
            EXPECT_TRUE(seen);
            EXPECT_FALSE(app.HasMainWindow());
        });
        EXPECT_EQ(result, 0);
    }
}

TEST_F(ProcTurnsTest, ARefreshUnderAReportOrTheWindowsListLeavesThemAlone)
{
    for (const UINT command : {CMD_PROCESS_DETAILS, CMD_WINDOWS_LIST}) {
        OnPage([&](ProgramApp& app) {
            bool seen = false;
            Select(app, 2);
            app.Later([&] {
                seen = true;
                system.processes.resize(2);
                TimerRefreshes(app);
                EXPECT_EQ(Page(app).ProcessCount(), 2u);
                ASSERT_EQ(app.dialogs->Count(), 1u);
                HWND dialog = app.dialogs->At(0)->Window();
                UpdateWindow(dialog);
                SendMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
            });
            Run(app, command);
            EXPECT_TRUE(seen);
            EXPECT_EQ(Mark(List(app)), 1);
        });
        system.processes.clear();
        AddProcesses(5);
    }
}

// The shell may let messages in while it looks for an icon.
TEST_F(ProcTurnsTest, ARefreshInsideTheCollectionLosesAndDoublesNoRow)
{
    OnPage([&](ProgramApp& app) {
        const Names whole = Listed(app);
        ASSERT_EQ(whole.size(), 5u);
        int insides = 0;
        SPY(SHGetFileInfo) icons;
        icons.instead = [&](const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags) {
            insides++;
            TimerRefreshes(app);
            return icons.Real(path, attributes, info, size, flags);
        };
        Select(app, 3);
        const size_t snapshots = system.snapshots.size();
        Run(app, CMD_REFRESH);
        EXPECT_EQ(insides, 5);
        EXPECT_EQ(system.snapshots.size(), snapshots + 1);
        EXPECT_EQ(Listed(app), whole);
        EXPECT_EQ(Count(app), 5);
        ExpectSelected(app, 3);
        icons.instead = nullptr;
        Run(app, CMD_REFRESH);
        EXPECT_EQ(system.snapshots.size(), snapshots + 2) << "later ones are not held back";
    });
}

TEST_F(ProcTurnsTest, PaintingInsideTheCollectionDrawsOnlyWhatIsThere)
{
    OnPage([&](ProgramApp& app) {
        std::vector<std::wstring> drawn;
        const SPY(DrawTextW) draw([&](HDC dc, const wchar_t* text, int length, RECT* rect, UINT flags) {
            drawn.emplace_back(text);
            return draw.Real(dc, text, length, rect, flags);
        });
        int icon = 0;
        SPY(SHGetFileInfo) icons;
        icons.instead = [&](const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags) {
            drawn.clear();
            InvalidateRect(List(app), nullptr, FALSE);
            UpdateWindow(List(app));
            Names expected;
            for (int row = 1; row <= icon; row++) {
                expected.insert(expected.end(), {L"0 B", L"p" + std::to_wstring(row) + L".exe"});
            }
            EXPECT_EQ(drawn, expected);
            icon++;
            return icons.Real(path, attributes, info, size, flags);
        };
        Page(app).FillContents(0);
        EXPECT_EQ(icon, 5);
    });
}
