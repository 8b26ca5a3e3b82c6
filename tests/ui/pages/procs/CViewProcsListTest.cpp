// The processes page: its list, and which row stays selected.
// profiles: pocketpc pocketpc-vga smartphone
#include "tests/support/Fatal.h"
#include "tests/ui/pages/RowDrawing.h"
#include "tests/ui/pages/procs/ProcsTest.h"

#include <algorithm>

class CViewProcsListTest : public ProcsTest
{
  protected:
    static bool IsVisibleRow(HWND list, int row)
    {
        const LRESULT top = SendMessageW(list, LVM_GETTOPINDEX, 0, 0);
        return row >= top && row < top + SendMessageW(list, LVM_GETCOUNTPERPAGE, 0, 0);
    }

    static LOGFONTW FontOf(HGDIOBJ font)
    {
        LOGFONTW description = {};
        GetObjectW(font, sizeof description, &description);
        return description;
    }
};

TEST_F(CViewProcsListTest, ThereIsARowForEveryProcessInTheSystemsOrder)
{
    system.Add(firstId, L"zebra.exe");
    system.Add(firstId + 2, L"NK.EXE");
    system.Add(firstId + 1, L"apple.exe");
    OnPage([&](ProgramApp& app) {
        EXPECT_EQ(Count(app), 3);
        EXPECT_EQ(Listed(app), (Names{L"zebra.exe", L"NK.EXE", L"apple.exe"}));
        EXPECT_EQ(Page(app).Process(1).id, firstId + 2);
    });
}

TEST_F(CViewProcsListTest, TheSystemIsAskedWhenThePageIsShownAndOnceByARefresh)
{
    AddProcesses(3);
    InProgram([&](ProgramApp& app) {
        Run(app, CMD_REFRESH);
        EXPECT_TRUE(system.snapshots.empty()) << "for another page";
        app.ActivateView(4);
        const size_t shown = system.snapshots.size();
        EXPECT_GE(shown, 1u);
        Run(app, CMD_REFRESH);
        EXPECT_EQ(system.snapshots.size(), shown + 1);
        SendMessageW(app.MainWindow(), WM_TIMER, 1, 0);
        EXPECT_EQ(system.snapshots.size(), shown + 2);
        app.ActivateView(2);
        EXPECT_EQ(system.snapshots.size(), shown + 2);
        app.ActivateView(4);
        EXPECT_GE(system.snapshots.size(), shown + 3);
        EXPECT_EQ(system.open, 0);
    });
}

TEST_F(CViewProcsListTest, TheControlIsToldTheCountOnceAndWithoutFlags)
{
    AddProcesses(7);
    OnPage([&](ProgramApp& app) {
        SPY(SendMessageW) send;
        system.processes.pop_back();
        Page(app).FillContents(0);
        std::vector<std::pair<WPARAM, LPARAM>> counts;
        for (const auto& [window, message, wParam, lParam] : send.calls) {
            if (message == LVM_SETITEMCOUNT) {
                EXPECT_EQ(window, List(app));
                counts.emplace_back(wParam, lParam);
            }
        }
        EXPECT_EQ(counts, (std::vector<std::pair<WPARAM, LPARAM>>{{6, 0}}));
    });
}

TEST_F(CViewProcsListTest, ShowingThePageSelectsAndShowsItsFirstRow)
{
    AddProcesses(40);
    OnPage([&](ProgramApp& app) {
        ExpectSelected(app, 0);
        EXPECT_EQ(GetFocus(), List(app));
        SendMessageW(List(app), WM_KEYDOWN, VK_END, 1);
        EXPECT_EQ(Mark(List(app)), 39);
        EXPECT_FALSE(IsVisibleRow(List(app), 0));
        app.ActivateView(3);
        SPY(UpdateWindow) update;
        app.ActivateView(4);
        ExpectSelected(app, 0);
        EXPECT_TRUE(IsVisibleRow(List(app), 0));
        EXPECT_EQ(GetFocus(), List(app));
        for (HWND painted : {List(app), Page(app).Window()}) {
            EXPECT_NE(std::find(update.calls.begin(), update.calls.end(), std::make_tuple(painted)),
                      update.calls.end());
        }
    });
}

TEST_F(CViewProcsListTest, ARefreshKeepsTheRowNotTheProcess)
{
    AddProcesses(40);
    OnPage([&](ProgramApp& app) {
        Select(app, 30);
        std::rotate(system.processes.begin(), system.processes.begin() + 1, system.processes.end());
        Run(app, CMD_REFRESH);
        ExpectSelected(app, 30);
        EXPECT_STREQ(Page(app).Process(30).name, L"p32.exe");
        Run(app, CMD_REFRESH);
        ExpectSelected(app, 30);
    });
}

TEST_F(CViewProcsListTest, AMarkBehindTheLastRowMovesToIt)
{
    AddProcesses(30);
    OnPage([&](ProgramApp& app) {
        Select(app, 29);
        for (const size_t left : {29u, 12u, 1u}) {
            system.processes.resize(left);
            Run(app, CMD_REFRESH);
            EXPECT_EQ(Count(app), static_cast<int>(left));
            ExpectSelected(app, static_cast<int>(left) - 1);
            EXPECT_TRUE(IsVisibleRow(List(app), static_cast<int>(left) - 1));
        }
    });
}

TEST_F(CViewProcsListTest, AListThatGrowsKeepsItsMark)
{
    AddProcesses(2);
    OnPage([&](ProgramApp& app) {
        Select(app, 1);
        AddProcesses(20);
        Run(app, CMD_REFRESH);
        EXPECT_EQ(Count(app), 22);
        ExpectSelected(app, 1);
    });
}

TEST_F(CViewProcsListTest, BothFontsAreTheSystemsTwoSmaller)
{
    AddProcesses(1);
    OnPage([](ProgramApp& app) {
        const LOGFONTW systemFont = FontOf(GetStockObject(SYSTEM_FONT));
        const LOGFONTW bold = FontOf(Page(app).Look().BoldFont());
        const LOGFONTW normal = FontOf(Page(app).Look().NormalFont());
        EXPECT_EQ(bold.lfWeight, 700);
        EXPECT_EQ(bold.lfHeight, systemFont.lfHeight + 2);
        EXPECT_EQ(normal.lfWeight, 400);
        EXPECT_EQ(normal.lfHeight, systemFont.lfHeight + 2);
        EXPECT_STREQ(bold.lfFaceName, systemFont.lfFaceName);
    });
}

TEST_F(CViewProcsListTest, TheStripIsALineOfBoldTextAndNinePixelsHigh)
{
    AddProcesses(1);
    OnPage([](ProgramApp& app) {
        TEXTMETRICW metrics = {};
        HDC screen = GetDC(nullptr);
        HGDIOBJ previous = SelectObject(screen, Page(app).Look().BoldFont());
        GetTextMetricsW(screen, &metrics);
        SelectObject(screen, previous);
        ReleaseDC(nullptr, screen);
        const int line = metrics.tmHeight + metrics.tmExternalLeading;
        EXPECT_EQ(Page(app).HeaderHeight(), line + ScaledY(1) + ScaledY(8));
        RECT list = WindowRect(List(app));
        MapWindowPoints(nullptr, Page(app).Window(), reinterpret_cast<POINT*>(&list), 2);
        EXPECT_EQ(list.top, Page(app).HeaderHeight());
    });
}

TEST_F(CViewProcsListTest, TheIconsAreTheSystemsSmallOnes)
{
    AddProcesses(1);
    OnPage([](ProgramApp& app) {
        const SSystemIcons& icons = Page(app).Look().Icons();
        SHFILEINFOW root = {};
        const DWORD_PTR list = SHGetFileInfo(L"\\", 0, &root, sizeof root, 0x4001);
        EXPECT_EQ(icons.list, reinterpret_cast<HIMAGELIST>(list));
        EXPECT_EQ(icons.rootIcon, root.iIcon);
        int width = 0;
        int height = 0;
        ImageList_GetIconSize(icons.list, &width, &height);
        EXPECT_EQ(icons.width, width);
        EXPECT_EQ(icons.height, height);
        EXPECT_EQ(icons.LargeSize(), width < 17 ? 32 : 48);
    });
}

TEST_F(CViewProcsListTest, AListThatCannotBeMadeIsFatal)
{
    const auto fail = [&] {
        int lists = 0;
        const SPY(CreateWindowExW) create([&](DWORD ex, const wchar_t* name, const wchar_t* title,
                                              DWORD style, int x, int y, int w, int h, HWND parent,
                                              HMENU menu, HINSTANCE instance, void* parameter) -> HWND {
            lists += style == 0x5000540D;
            return style == 0x5000540D && lists == 4
                       ? nullptr
                       : create.Real(ex, name, title, style, x, y, w, h, parent, menu, instance, parameter);
        });
        InProgram([](ProgramApp&) {});
    };
    EXPECT_FATAL_AT(fail(), L"CLB_Procs::Construct", 214, L"Error");
}

TEST_F(CViewProcsListTest, AColumnThatCannotBeMadeAgainIsFatal)
{
    const auto fail = [&] {
        OnPage([](ProgramApp& app) {
            const SPY(SendMessageW) send([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
                return message == LVM_INSERTCOLUMNW ? LRESULT{-1}
                                                    : send.Real(window, message, wParam, lParam);
            });
            Run(app, CMD_REFRESH);
        });
    };
    AddProcesses(1);
    EXPECT_FATAL_AT(fail(), L"CLB_Procs::RecreateColumns", 53, L"Error");
}
