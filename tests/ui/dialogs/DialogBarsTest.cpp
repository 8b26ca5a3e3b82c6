// The soft keys that each dialog asks the shell for.
// profiles: pocketpc smartphone
#include "dialogs/CDialogInfo.h"
#include "dialogs/CDialogSelectApp.h"
#include "resources/ids.h"
#include "tests/ui/ProgramTest.h"

#include <deque>

class DialogBarsTest : public ProgramTest
{
  private:
    std::deque<WPARAM> commands;
    HWND answered = nullptr;

    // A dialog that was answered goes only when its loop has read it: until then the next answer waits.
    void AnswerNext(ProgramApp& app)
    {
        app.Later([&app, this] {
            const uint32_t open = app.dialogs->Count();
            HWND top = open > 0 ? app.dialogs->At(open - 1)->Window() : nullptr;
            if (top == answered) {
                AnswerNext(app);
                return;
            }
            answered = top;
            const WPARAM command = commands.front();
            commands.pop_front();
            if (!commands.empty()) {
                AnswerNext(app);
            }
            SendMessageW(top, WM_COMMAND, command, 0);
        });
    }

  protected:
    // Runs it in the program, where it opens dialogs, one out of the other; answers each of them with its
    // command and gives the bars of all.
    std::vector<UINT> BarsOf(const std::function<void(ProgramApp&)>& opening, std::deque<WPARAM> answers)
    {
        commands = std::move(answers);
        std::vector<UINT> bars;
        InProgram([&](ProgramApp& app) {
            const SPY(SHCreateMenuBar) create([&](SHMENUBARINFO* info) {
                if (info->hwndParent != app.MainWindow()) {
                    EXPECT_EQ(info->hInstRes, app.Instance());
                    bars.push_back(info->nToolBarId);
                }
                return create.Real(info);
            });
            AnswerNext(app);
            opening(app);
            EXPECT_EQ(app.dialogs->Count(), 0u);
        });
        return bars;
    }
};

TEST_F(DialogBarsTest, TheInformationDialogHasItsOwn)
{
    const auto show = [](ProgramApp&) {
        const CStr text(L"text");
        CDialogInfo::Show(text);
    };
    EXPECT_EQ(BarsOf(show, {1}), (std::vector<UINT>{170}));
}

TEST_F(DialogBarsTest, TheReportOnATaskIsAnInformationDialog)
{
    AddTask(L"Task");
    const auto report = [](ProgramApp& app) {
        SendMessageW(app.MainWindow(), WM_COMMAND, CMD_APPLICATION_INFO, 0);
    };
    EXPECT_EQ(BarsOf(report, {1}), (std::vector<UINT>{170}));
}

TEST_F(DialogBarsTest, TheWindowsListHasItsOwnAndTheReportAboveItToo)
{
    AddTask(L"Task");
    const auto windows = [](ProgramApp& app) {
        SendMessageW(app.MainWindow(), WM_COMMAND, CMD_WINDOWS_LIST, 0);
    };
    EXPECT_EQ(BarsOf(windows, {32802, 1, 1}), (std::vector<UINT>{173, 170}));
}

TEST_F(DialogBarsTest, ThePickerHasItsOwn)
{
    const auto pick = [](ProgramApp& app) {
        CStr path;
        CDialogSelectApp::Pick(app.startPrograms, path);
    };
    EXPECT_EQ(BarsOf(pick, {2}), (std::vector<UINT>{177}));
}
