// The page of the running applications: what may happen while a command of it asks or shows something.
// profiles: pocketpc smartphone
#include "resources/ids.h"
#include "tests/ui/ProgramTest.h"

class TaskTurnsTest : public ProgramTest
{
  protected:
    void AddTasks(int count)
    {
        for (int i = 0; i < count; i++) {
            AddTask((L"Task " + std::to_wstring(i)).c_str());
        }
    }
};

// The list may be rebuilt while the application answers, as a timer of the program does.
TEST_F(TaskTurnsTest, TheNeighbourIsTheOneFromBeforeTheTaskWasAsked)
{
    AddTasks(5);
    InProgram([&](ProgramApp& app) {
        app.Tasks().FillList(1);
        HWND task = listed[1];
        HWND below = listed[2];
        SPY(SendMessageW) send;
        send.instead = [&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
            const LRESULT result = send.Real(window, message, wParam, lParam);
            if (message == WM_CLOSE && window == task) {
                Unlist(task);
                app.Tasks().FillList(-1);
                EXPECT_EQ(app.Tasks().TaskCount(), 4u);
            }
            return result;
        };
        SendMessageW(app.MainWindow(), WM_COMMAND, CMD_CLOSE_APPLICATION, 0);
        EXPECT_FALSE(IsWindow(task));
        EXPECT_EQ(app.Tasks().Task(static_cast<uint32_t>(Mark(app.TaskList()))).window, below);
    });
}

TEST_F(TaskTurnsTest, ThePageMayEndWhileItsListTellsOfARow)
{
    AddTasks(2);
    InProgram([&](ProgramApp& app) {
        const SPY(SetForegroundWindow) foreground([&](HWND) {
            DestroyWindow(app.MainWindow());
            return TRUE;
        });
        SendMessageW(app.TaskList(), WM_KEYDOWN, VK_RETURN, 1);
        EXPECT_FALSE(app.HasMainWindow());
    });
}
