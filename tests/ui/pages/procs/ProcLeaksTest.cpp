// What a long life of the processes page leaves behind: nothing but the handles that it is to leave open.
#include "tests/support/ChildProgram.h"
#include "tests/ui/KeptFonts.h"
#include "tests/ui/LeakCheck.h"
#include "tests/ui/pages/procs/ProcsTest.h"

class ProcLeaksTest : public ProcsTest
{
  protected:
    static constexpr DWORD running = 259;

    void ExpectNothingLeft(int times, const std::function<void()>& step, size_t keptBySystem = 0)
    {
        const auto forget = [this] {
            enumWindows.calls.clear();
            sleep.calls.clear();
            registerClass.calls.clear();
            system.snapshots.clear();
            system.pathSizes.clear();
        };
        ::ExpectNothingLeft(times, step, forget, keptBySystem);
    }

    // Handles of this process that stand for that one.
    static int HandlesOf(DWORD process)
    {
        int handles = 0;
        for (UINT_PTR value = 4; value < 0x4000; value += 4) {
            handles += GetProcessId(reinterpret_cast<HANDLE>(value)) == process;
        }
        return handles;
    }

    // Ends a real process a hundred times, which never runs and is not really ended. The boxes are answered
    // Yes as often as given; of the two exit codes the second is the one after termination. The result is how
    // many handles are left of each ending.
    int HandlesLeftByEnding(int yesAnswers, DWORD firstCode, DWORD secondCode,
                            const wchar_t* name = L"cmd.exe", const wchar_t* nameNow = L"cmd.exe")
    {
        constexpr int endings = 100;
        const ChildProgram child(L"C:\\windows\\system32\\cmd.exe");
        system.processes.clear();
        system.Add(child.Id(), name);
        int answered = 0;
        bool isTerminated = false;
        const SPY(WaitForSingleObject) wait([](HANDLE, DWORD) -> DWORD { return WAIT_TIMEOUT; });
        const SPY(GetExitCodeProcess) exitCode([&](HANDLE, DWORD* code) {
            *code = isTerminated ? secondCode : firstCode;
            return TRUE;
        });
        const SPY(TerminateProcess) terminate([&](HANDLE, UINT) {
            isTerminated = true;
            return TRUE;
        });
        SPY(MessageBoxW) box;
        box.instead = [&](HWND, const wchar_t*, const wchar_t*, UINT type) {
            system.processes[0].name = nameNow;
            if (type != MB_YESNO) {
                return IDOK;
            }
            return answered++ < yesAnswers ? IDYES : IDNO;
        };
        int left = -1;
        OnPage([&](ProgramApp& app) {
            EXPECT_EQ(HandlesOf(child.Id()), 1) << "the test's own";
            for (int i = 0; i < endings; i++) {
                system.processes[0].name = name;
                Run(app, CMD_REFRESH);
                answered = 0;
                isTerminated = false;
                Run(app, CMD_END_PROCESS);
            }
            left = HandlesOf(child.Id()) - 1;
        });
        EXPECT_EQ(left % endings, 0) << left;
        return left / endings;
    }
};

TEST_F(ProcLeaksTest, AThousandRefreshesLeaveNothing)
{
    AddProcesses(12);
    OnPage([&](ProgramApp& app) { ExpectNothingLeft(1000, [&] { Run(app, CMD_REFRESH); }); });
}

TEST_F(ProcLeaksTest, RowsThatComeAndGoLeaveNothing)
{
    AddProcesses(1);
    OnPage([&](ProgramApp& app) {
        ExpectNothingLeft(100, [&] {
            AddProcesses(30);
            Run(app, CMD_REFRESH);
            system.processes.resize(1);
            Run(app, CMD_REFRESH);
        });
    });
}

TEST_F(ProcLeaksTest, ReportsAndWindowsListsLeaveNothing)
{
    AddProcesses(3);
    system.processes[0].modules.resize(20);
    OnPage([&](ProgramApp& app) {
        // Wine 8.0's edit control keeps a block for each one whose text is longer than a few hundred
        // characters.
        const struct
        {
            UINT command;
            size_t keptBySystem;
        } dialogs[] = {{CMD_PROCESS_DETAILS, 1}, {CMD_WINDOWS_LIST, 0}};
        for (const auto& dialog : dialogs) {
            SCOPED_TRACE(dialog.command);
            const auto step = [&] {
                app.Later([&] { app.EndAllDialogs(); });
                Run(app, dialog.command);
            };
            ExpectNothingLeft(50, step, dialog.keptBySystem);
        }
    });
}

TEST_F(ProcLeaksTest, AHundredRefusalsAndDeclinedQuestionsLeaveNothing)
{
    const SPY(MessageBoxW) box([](HWND, const wchar_t*, const wchar_t*, UINT) { return IDNO; });
    AddProcesses(1);
    system.Add(firstId + 1, L"nk.exe");
    OnPage([&](ProgramApp& app) {
        for (const int row : {0, 1}) {
            Select(app, row);
            const auto step = [&] { Run(app, CMD_END_PROCESS); };
            ExpectNothingLeft(100, step);
        }
    });
}

TEST_F(ProcLeaksTest, AnEndThatWasNeverBegunLeavesNoHandle)
{
    EXPECT_EQ(HandlesLeftByEnding(0, running, running), 0) << "declined";
    EXPECT_EQ(HandlesLeftByEnding(2, running, running, L"nk.exe", L"nk.exe"), 0) << "refused";
    EXPECT_EQ(HandlesLeftByEnding(2, running, running, L"cmd.exe", L"other.exe"), 0) << "taken by another";
}

TEST_F(ProcLeaksTest, ASuccessfulRequestToCloseLeavesOneHandle)
{
    EXPECT_EQ(HandlesLeftByEnding(1, 0, 0), 1);
}

TEST_F(ProcLeaksTest, ADeclinedTerminationLeavesOneHandle)
{
    EXPECT_EQ(HandlesLeftByEnding(1, running, running), 1);
}

TEST_F(ProcLeaksTest, ATerminationLeavesNoHandle)
{
    EXPECT_EQ(HandlesLeftByEnding(2, running, 0), 0);
    EXPECT_EQ(HandlesLeftByEnding(2, running, running), 0) << "also when it runs on";
}

TEST_F(ProcLeaksTest, TheEndOfThePageLeavesNothingOfIt)
{
    AddProcesses(25);
    KeptFonts fonts;
    ExpectNothingLeft(10, [&] {
        OnPage([](ProgramApp& app) { EXPECT_EQ(Count(app), 25); });
        EXPECT_TRUE(fonts.Delete());
    });
}
