// What a long life of the program leaves behind: nothing but the font that is to stay.
#include "resources/ids.h"
#include "tests/support/ObjectCounts.h"
#include "tests/ui/KeptFonts.h"
#include "tests/ui/LeakCheck.h"
#include "tests/ui/ProgramTest.h"

class ProgramLeaksTest : public ProgramTest
{
  protected:
    void Forget()
    {
        enumWindows.calls.clear();
        sleep.calls.clear();
        registerClass.calls.clear();
    }

    void ExpectNothingLeft(int times, const std::function<void()>& step, size_t keptBySystem = 0)
    {
        ::ExpectNothingLeft(
            times, step, [this] { Forget(); }, keptBySystem);
    }
};

TEST_F(ProgramLeaksTest, TheCountersSeeWhatIsLeft)
{
    // The first window of a thread brings another one along.
    AddTask(L"first");
    const ObjectCounts before = ObjectCounts::Now();
    EXPECT_TRUE(ObjectCounts::Now().SameObjects(before));
    HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    EXPECT_FALSE(ObjectCounts::Now().SameObjects(before));
    DeleteObject(brush);
    EXPECT_TRUE(ObjectCounts::Now().SameObjects(before));
    HMENU menu = CreatePopupMenu();
    EXPECT_EQ(ObjectCounts::Now().menus, before.menus + 1);
    DestroyMenu(menu);
    ACCEL key = {FVIRTKEY, VK_F5, 1};
    HACCEL table = CreateAcceleratorTableW(&key, 1);
    EXPECT_EQ(ObjectCounts::Now().acceleratorTables, before.acceleratorTables + 1);
    EXPECT_FALSE(ObjectCounts::Now().SameObjects(before));
    DestroyAcceleratorTable(table);
    EXPECT_TRUE(ObjectCounts::Now().SameObjects(before));
    HWND window =
        CreateWindowExW(0, L"Static", nullptr, WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(ObjectCounts::Now().windows, before.windows + 1);
    DestroyWindow(window);
    auto* const block = new char[10];
    EXPECT_EQ(ObjectCounts::Now().programBlocks, before.programBlocks + 1);
    delete[] block;
    const ObjectCounts blocks = ObjectCounts::Now();
    HLOCAL local[100];
    for (HLOCAL& each : local) {
        each = LocalAlloc(0, 100);
    }
    EXPECT_GE(ObjectCounts::Now().heapBlocks, blocks.heapBlocks + 90);
    for (HLOCAL each : local) {
        LocalFree(each);
    }
}

TEST_F(ProgramLeaksTest, AThousandRefreshesLeaveNothing)
{
    for (int i = 0; i < 3; i++) {
        AddTask((L"Task " + std::to_wstring(i)).c_str());
    }
    InProgram([&](ProgramApp& app) {
        ExpectNothingLeft(1000, [&] { SendMessageW(app.MainWindow(), WM_COMMAND, CMD_REFRESH, 0); });
    });
}

TEST_F(ProgramLeaksTest, TwoHundredChangesOfThePageLeaveNothing)
{
    AddTask(L"Task");
    InProgram([&](ProgramApp& app) {
        const UINT commands[] = {CMD_SHOW_START, CMD_SHOW_SYSINFO, CMD_SHOW_PROCS, CMD_SHOW_TASKS};
        int next = 0;
        ExpectNothingLeft(200, [&] {
            SendMessageW(app.MainWindow(), WM_COMMAND, commands[next++ % 4], 0);
            UpdateWindow(app.MainWindow());
        });
    });
}

TEST_F(ProgramLeaksTest, DialogsLeaveNothing)
{
    AddTask(L"Task");
    // Wine 8.0's edit control keeps a block for each one whose text is longer than a few hundred characters.
    const struct
    {
        UINT command;
        size_t keptBySystem;
    } dialogs[] = {{CMD_APPLICATION_INFO, 1}, {CMD_WINDOWS_LIST, 0}};
    InProgram([&](ProgramApp& app) {
        for (const auto& each : dialogs) {
            SCOPED_TRACE(each.command);
            const auto step = [&] {
                app.Later([&] { app.EndAllDialogs(); });
                SendMessageW(app.MainWindow(), WM_COMMAND, each.command, 0);
            };
            ExpectNothingLeft(50, step, each.keptBySystem);
        }
    });
}

TEST_F(ProgramLeaksTest, NoticesLeaveNothing)
{
    InProgram([&](ProgramApp& app) {
        ExpectNothingLeft(200, [&] { app.ShowNotice(L"Window is no longer exists."); });
    });
}

TEST_F(ProgramLeaksTest, AWholeLifeOfTheProgramLeavesNothingElse)
{
    AddTask(L"Task");
    KeptFonts fonts;
    ExpectNothingLeft(10, [&] {
        InProgram([](ProgramApp& app) { app.ShowPage(4); });
        EXPECT_TRUE(fonts.Delete());
    });
}
