// The page of the running applications: its list, and which row stays selected.
// profiles: pocketpc pocketpc-vga smartphone
#include "framework/Scale.h"
#include "lists/RowMeasures.h"
#include "resources/ids.h"
#include "tests/support/Fatal.h"
#include "tests/support/TestHeap.h"
#include "tests/ui/ProgramTest.h"

#include <algorithm>

class CViewTasksListTest : public ProgramTest
{
  protected:
    using Rows = std::vector<int>;

    static void ExpectSelected(HWND list, int row)
    {
        EXPECT_EQ(Mark(list), row);
        EXPECT_EQ(RowsInState(list, LVIS_SELECTED), Rows{row});
        EXPECT_EQ(RowsInState(list, LVIS_FOCUSED), Rows{row});
    }

    static bool IsVisibleRow(HWND list, int row)
    {
        const LRESULT top = SendMessageW(list, LVM_GETTOPINDEX, 0, 0);
        return row >= top && row < top + SendMessageW(list, LVM_GETCOUNTPERPAGE, 0, 0);
    }

    static void Refresh(ProgramApp& app) { app.Tasks().OnCommand(CMD_REFRESH, 0, 0); }

    void AddTasks(int count)
    {
        for (int i = 0; i < count; i++) {
            AddTask((L"Task " + std::to_wstring(i)).c_str());
        }
    }

    static LOGFONTW FontOf(HGDIOBJ font)
    {
        LOGFONTW description = {};
        GetObjectW(font, sizeof description, &description);
        return description;
    }

    void RunAnyProgram()
    {
        InProgram([](ProgramApp&) {});
    }
};

TEST_F(CViewTasksListTest, TheListIsAnOwnerDrawnVirtualListUnderTheStrip)
{
    InProgram([](ProgramApp& app) {
        HWND list = app.TaskList();
        ASSERT_NE(list, nullptr);
        wchar_t className[100] = {};
        GetClassNameW(list, className, 100);
        EXPECT_STREQ(className, L"SysListView32");
        EXPECT_EQ(static_cast<uint32_t>(GetWindowLongPtrW(list, GWL_STYLE)) &
                      ~static_cast<uint32_t>(WS_VSCROLL),
                  0x5000540Du);
        EXPECT_EQ(SendMessageW(list, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0) & 0x20000021, 0x20000021);
        EXPECT_EQ(Text(list), L"");
        EXPECT_NE(GetWindowLongPtrW(list, GWLP_USERDATA), 0);
        RECT rect = WindowRect(list);
        MapWindowPoints(nullptr, app.Tasks().Window(), reinterpret_cast<POINT*>(&rect), 2);
        const SIZE client = ClientSize(app.Tasks().Window());
        EXPECT_EQ(rect, (RECT{0, app.Tasks().HeaderHeight(), client.cx, client.cy}));
    });
}

TEST_F(CViewTasksListTest, TheFontsAreTheSystemFontBoldAndTwoSmaller)
{
    InProgram([](ProgramApp& app) {
        const LOGFONTW system = FontOf(GetStockObject(SYSTEM_FONT));
        const LOGFONTW bold = FontOf(app.Tasks().Look().BoldFont());
        const LOGFONTW normal = FontOf(app.Tasks().Look().NormalFont());
        EXPECT_EQ(bold.lfWeight, 700);
        EXPECT_EQ(bold.lfHeight, system.lfHeight);
        EXPECT_EQ(normal.lfWeight, 400);
        EXPECT_EQ(normal.lfHeight, system.lfHeight + 2);
        EXPECT_STREQ(bold.lfFaceName, system.lfFaceName);
    });
}

TEST_F(CViewTasksListTest, TheStripIsALineOfBoldTextAndNinePixelsHigh)
{
    CStartPrograms programs;
    const CViewTasks unmade(programs);
    EXPECT_EQ(unmade.HeaderHeight(), 20);
    InProgram([](ProgramApp& app) {
        TEXTMETRICW metrics = {};
        HDC screen = GetDC(nullptr);
        HGDIOBJ previous = SelectObject(screen, app.Tasks().Look().BoldFont());
        GetTextMetricsW(screen, &metrics);
        SelectObject(screen, previous);
        const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
        ReleaseDC(nullptr, screen);
        const int line = metrics.tmHeight + metrics.tmExternalLeading;
        EXPECT_EQ(app.Tasks().HeaderHeight(), line + (dpi + 48) / 96 + (8 * dpi + 48) / 96);

        MEASUREITEMSTRUCT measure = {};
        measure.CtlType = 102;
        EXPECT_EQ(
            SendMessageW(app.Tasks().Window(), WM_MEASUREITEM, IDC_LIST, reinterpret_cast<LPARAM>(&measure)),
            TRUE);
        const int text = line + (dpi + 48) / 96 + (2 * dpi + 48) / 96;
        const int icon = app.Tasks().Look().Icons().height + (4 * dpi + 48) / 96;
        EXPECT_EQ(static_cast<int>(measure.itemHeight), text > icon ? text : icon);
    });
}

TEST_F(CViewTasksListTest, OtherControlsAreNotMeasured)
{
    InProgram([](ProgramApp& app) {
        MEASUREITEMSTRUCT measure = {};
        measure.CtlType = ODT_LISTBOX;
        measure.itemHeight = 77;
        SendMessageW(app.Tasks().Window(), WM_MEASUREITEM, 5, reinterpret_cast<LPARAM>(&measure));
        EXPECT_EQ(measure.itemHeight, 77u);
    });
}

TEST_F(CViewTasksListTest, TheIconsAreTheSystemsSmallOnes)
{
    SPY(SHGetFileInfo) info;
    std::vector<std::pair<std::wstring, UINT>> asked;
    info.instead = [&](const wchar_t* path, DWORD attributes, SHFILEINFOW* out, UINT size, UINT flags) {
        asked.emplace_back(path, flags);
        return info.Real(path, attributes, out, size, flags);
    };
    InProgram([&](ProgramApp& app) {
        SHFILEINFOW root = {};
        const DWORD_PTR list = SHGetFileInfo(L"\\", 0, &root, sizeof root, 0x4001);
        EXPECT_EQ(app.Tasks().Look().Icons().list, reinterpret_cast<HIMAGELIST>(list));
        EXPECT_EQ(app.Tasks().Look().Icons().rootIcon, root.iIcon);
        int width = 0;
        int height = 0;
        ImageList_GetIconSize(app.Tasks().Look().Icons().list, &width, &height);
        EXPECT_EQ(app.Tasks().Look().Icons().width, width);
        EXPECT_EQ(app.Tasks().Look().Icons().height, height);
        EXPECT_EQ(app.Tasks().Look().Icons().LargeSize(), width < 17 ? 32 : 48);
        ASSERT_FALSE(asked.empty());
        EXPECT_EQ(asked[0], (std::pair<std::wstring, UINT>{L"\\", 0x4001}));
    });
}

TEST_F(CViewTasksListTest, OneColumnSpansTheList)
{
    AddTasks(100);
    InProgram([](ProgramApp& app) {
        HWND list = app.TaskList();
        const auto check = [&] {
            LVCOLUMNW column = {};
            column.mask = LVCF_FMT | LVCF_WIDTH;
            ASSERT_TRUE(SendMessageW(list, LVM_GETCOLUMNW, 0, reinterpret_cast<LPARAM>(&column)));
            EXPECT_EQ(column.fmt & LVCFMT_JUSTIFYMASK, LVCFMT_LEFT);
            EXPECT_EQ(column.cx, ClientSize(list).cx);
            EXPECT_FALSE(SendMessageW(list, LVM_GETCOLUMNW, 1, reinterpret_cast<LPARAM>(&column)));
        };
        check();
        Refresh(app);
        check();
        SendMessageW(app.MainWindow(), WM_SIZE, 0, MAKELPARAM(150, 120));
        check();
        EXPECT_EQ(ClientSize(app.Tasks().Window()).cx, 150);
    });
}

TEST_F(CViewTasksListTest, AListThatCannotBeMadeIsFatal)
{
    const auto fail = [&] {
        SPY(CreateWindowExW) create;
        create.instead = [&](DWORD ex, const wchar_t* name, const wchar_t* title, DWORD style, int x, int y,
                             int w, int h, HWND parent, HMENU menu, HINSTANCE instance,
                             void* parameter) -> HWND {
            if (style == 0x5000540D) {
                return nullptr;
            }
            return create.Real(ex, name, title, style, x, y, w, h, parent, menu, instance, parameter);
        };
        RunAnyProgram();
    };
    EXPECT_FATAL_AT(fail(), L"CLB_Tasks::Construct", 214, L"Error");
}

TEST_F(CViewTasksListTest, AColumnThatCannotBeInsertedIsFatal)
{
    const auto fail = [&] {
        SPY(SendMessageW) send;
        send.instead = [&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
            return message == LVM_INSERTCOLUMNW ? -1 : send.Real(window, message, wParam, lParam);
        };
        RunAnyProgram();
    };
    EXPECT_FATAL_AT(fail(), L"CLB_Tasks::RecreateColumns", 53, L"Error");
}

TEST_F(CViewTasksListTest, ShowingThePageFillsItAndSelectsTheFirstRow)
{
    AddTasks(30);
    InProgram([&](ProgramApp& app) {
        HWND list = app.TaskList();
        EXPECT_EQ(app.Tasks().TaskCount(), 30u);
        EXPECT_EQ(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0), 30);
        EXPECT_EQ(GetFocus(), list);
        ExpectSelected(list, 0);
        app.Tasks().FillList(-1);
        SendMessageW(list, WM_KEYDOWN, VK_END, 1);
        EXPECT_EQ(Mark(list), 29);
        app.ActivateView(3);
        SPY(UpdateWindow) update;
        app.ActivateView(1);
        ExpectSelected(list, 0);
        EXPECT_TRUE(IsVisibleRow(list, 0));
        EXPECT_EQ(GetFocus(), list);
        for (HWND painted : {list, app.Tasks().Window()}) {
            EXPECT_NE(std::find(update.calls.begin(), update.calls.end(), std::make_tuple(painted)),
                      update.calls.end());
        }
    });
}

TEST_F(CViewTasksListTest, ARefreshKeepsTheTaskNotTheRow)
{
    AddTasks(40);
    InProgram([&](ProgramApp& app) {
        HWND list = app.TaskList();
        SendMessageW(list, WM_KEYDOWN, VK_DOWN, 1);
        SendMessageW(list, WM_KEYDOWN, VK_DOWN, 1);
        HWND task = listed[2];
        EXPECT_EQ(app.Tasks().Task(2).window, task);
        std::rotate(listed.begin(), listed.begin() + 3, listed.end()); // to the end
        Refresh(app);
        ExpectSelected(list, 39);
        EXPECT_EQ(app.Tasks().Task(39).window, task);
        EXPECT_TRUE(IsVisibleRow(list, 39));
        std::rotate(listed.begin(), listed.begin() + 39, listed.end()); // to the front
        Refresh(app);
        ExpectSelected(list, 0);
        EXPECT_TRUE(IsVisibleRow(list, 0));
    });
}

TEST_F(CViewTasksListTest, AGivenRowsTaskIsSelected)
{
    AddTasks(5);
    InProgram([&](ProgramApp& app) {
        HWND list = app.TaskList();
        app.Tasks().FillList(3);
        ExpectSelected(list, 3);
        std::rotate(listed.begin(), listed.begin() + 1, listed.end());
        app.Tasks().FillList(1);
        ExpectSelected(list, 0);
    });
}

TEST_F(CViewTasksListTest, ARowThatDoesNotExistSelectsNothingNew)
{
    AddTasks(3);
    InProgram([&](ProgramApp& app) {
        HWND list = app.TaskList();
        app.Tasks().FillList(1);
        for (const int row : {3, 4, 0x7FFFFFFF, -2, static_cast<int>(0x80000000)}) {
            app.Tasks().FillList(row);
            EXPECT_EQ(Mark(list), 1) << row;
        }
    });
}

TEST_F(CViewTasksListTest, WhenTheSelectedTaskHasGoneTheRowNumberStays)
{
    AddTasks(5);
    InProgram([&](ProgramApp& app) {
        HWND list = app.TaskList();
        app.Tasks().FillList(2);
        HWND gone = listed[2];
        Unlist(gone);
        Refresh(app);
        EXPECT_EQ(Mark(list), 2);
        EXPECT_EQ(app.Tasks().TaskCount(), 4u);
        EndTask(gone);
    });
}

TEST_F(CViewTasksListTest, AMarkBehindTheLastRowSelectsTheFirst)
{
    AddTasks(5);
    InProgram([&](ProgramApp& app) {
        HWND list = app.TaskList();
        app.Tasks().FillList(4);
        HWND gone = listed[4];
        Unlist(gone);
        Refresh(app);
        ExpectSelected(list, 0);
        EndTask(gone);
    });
}

TEST_F(CViewTasksListTest, AnEmptyListHasNoSelectionAndFillsAgain)
{
    AddTasks(3);
    InProgram([&](ProgramApp& app) {
        HWND list = app.TaskList();
        std::vector<HWND> all;
        all.swap(listed);
        Refresh(app);
        EXPECT_EQ(app.Tasks().TaskCount(), 0u);
        EXPECT_EQ(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0), 0);
        EXPECT_EQ(Mark(list), -1);
        Refresh(app);
        EXPECT_EQ(Mark(list), -1);
        all.swap(listed);
        Refresh(app);
        ExpectSelected(list, 0);
    });
}

TEST_F(CViewTasksListTest, AResizedPageKeepsTheSelectedRowInView)
{
    AddTasks(40);
    InProgram([&](ProgramApp& app) {
        HWND list = app.TaskList();
        app.Tasks().FillList(11);
        EXPECT_TRUE(IsVisibleRow(list, 11));
        SendMessageW(app.MainWindow(), WM_SIZE, 0, MAKELPARAM(200, app.Tasks().HeaderHeight() * 4));
        EXPECT_TRUE(IsVisibleRow(list, 11));
        RECT rect = WindowRect(list);
        MapWindowPoints(nullptr, app.Tasks().Window(), reinterpret_cast<POINT*>(&rect), 2);
        EXPECT_EQ(rect, (RECT{0, app.Tasks().HeaderHeight(), 200, app.Tasks().HeaderHeight() * 4}));
    });
}

TEST_F(CViewTasksListTest, SizesOfNothingDoNoHarm)
{
    AddTasks(4);
    InProgram([&](ProgramApp& app) {
        for (const LPARAM size :
             {MAKELPARAM(0, 0), MAKELPARAM(1, 1), MAKELPARAM(240, 5), MAKELPARAM(240, 240)}) {
            SendMessageW(app.MainWindow(), WM_SIZE, 0, size);
            Refresh(app);
            EXPECT_EQ(app.Tasks().TaskCount(), 4u);
        }
    });
}

TEST_F(CViewTasksListTest, EveryRebuildFreesTheOldRecords)
{
    AddTasks(25);
    InProgram([&](ProgramApp& app) {
        enumWindows.calls.reserve(1000); // the spies' own blocks are not counted
        Refresh(app);
        const size_t before = LiveBlocks();
        for (int i = 0; i < 100; i++) {
            app.Tasks().FillList(-1);
            enumWindows.calls.clear();
        }
        EXPECT_EQ(LiveBlocks(), before);
        std::vector<HWND> all;
        all.swap(listed);
        app.Tasks().FillList(-1);
        EXPECT_LE(LiveBlocks() + 25, before) << "a record each, at least";
        all.swap(listed);
    });
}
