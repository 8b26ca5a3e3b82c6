// A tap on the title strip: which part does what, and what becomes of the message and of the menu.
// profiles: pocketpc pocketpc-vga
#include "resources/ids.h"
#include "tests/ui/ProgramTest.h"

class StripTapTest : public ProgramTest
{
  protected:
    std::vector<std::wstring> lines; // of the menu that came up last
    HMENU menu = nullptr;
    POINT shownAt = {};
    UINT flags = 0;
    BOOL choice = 0; // what the user takes
    SPY(TrackPopupMenuEx) track;

    StripTapTest()
    {
        track.instead = [this](HMENU shown, UINT how, int x, int y, HWND, TPMPARAMS*) {
            menu = shown;
            flags = how;
            shownAt = {x, y};
            lines.clear();
            for (int i = 0; i < GetMenuItemCount(shown); i++) {
                const auto item = static_cast<UINT>(i);
                wchar_t text[50] = {};
                GetMenuStringW(shown, item, text, 50, MF_BYPOSITION);
                const UINT state = GetMenuState(shown, item, MF_BYPOSITION);
                lines.push_back(
                    state & MF_SEPARATOR ? L"-" : std::wstring(text) + (state & MF_GRAYED ? L" grey" : L""));
            }
            return choice;
        };
    }

    static int Scaled96(int n, int index)
    {
        HDC screen = GetDC(nullptr);
        const int dpi = GetDeviceCaps(screen, index);
        ReleaseDC(nullptr, screen);
        return (n * dpi + 48) / 96;
    }

    static void Tap(CVireoView& page, LONG x, LONG y)
    {
        SendMessageW(page.Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    }
};

TEST_F(StripTapTest, EachPartReachesToItsBoundary)
{
    InProgram([&](ProgramApp& app) {
        const int height = app.Tasks().HeaderHeight();
        const LONG width = ClientSize(app.Tasks().Window()).cx;
        const LONG zone = Scaled96(8, LOGPIXELSX) + height / 2;
        const struct
        {
            LONG x;
            LONG y;
            int page;
            size_t menus;
        } taps[] = {{0, 0, 4, 0},
                    {zone, height, 4, 0},
                    {zone + 1, height, 1, 1},
                    {width - zone - 1, 0, 1, 1},
                    {width - zone, 0, 3, 0},
                    {width - 1, height, 3, 0},
                    {0, height + 1, 1, 0},
                    {width / 2, height + 1, 1, 0},
                    {width - 1, height + 1, 1, 0}};
        for (const auto& tap : taps) {
            app.ActivateView(1);
            track.calls.clear();
            Tap(app.Tasks(), tap.x, tap.y);
            EXPECT_EQ(app.ActiveView()->Id(), tap.page) << tap.x << ',' << tap.y;
            EXPECT_EQ(track.calls.size(), tap.menus) << tap.x << ',' << tap.y;
        }
    });
}

TEST_F(StripTapTest, ThePopUpHasThePagesWithItsOwnGreyAndRefresh)
{
    const std::vector<std::wstring> pages[] = {
        {L"Running apps grey", L"Start", L"System info", L"Processes", L"-", L"Refresh"},
        {L"Running apps", L"Start", L"System info grey", L"Processes", L"-", L"Refresh"},
        {L"Running apps", L"Start grey", L"System info", L"Processes", L"-", L"Refresh"},
        {L"Running apps", L"Start", L"System info", L"Processes grey", L"-", L"Refresh"}};
    InProgram([&](ProgramApp& app) {
        for (int32_t page = 1; page <= 4; page++) {
            app.ActivateView(page);
            HWND window = app.ActiveView()->Window();
            POINT tapped = {ClientSize(window).cx / 2, 3};
            Tap(*app.ActiveView(), tapped.x, tapped.y);
            EXPECT_EQ(lines, pages[page - 1]) << page;
            ClientToScreen(window, &tapped);
            EXPECT_EQ(shownAt.x, tapped.x);
            EXPECT_EQ(shownAt.y, tapped.y);
            EXPECT_EQ(flags, 0x100U) << "it returns the command";
            EXPECT_FALSE(IsMenu(menu)) << "it is left over";
        }
    });
}

TEST_F(StripTapTest, TheChoiceIsACommandOfThePage)
{
    InProgram([&](ProgramApp& app) {
        const LONG middle = ClientSize(app.Tasks().Window()).cx / 2;
        const std::pair<BOOL, int> choices[] = {
            {CMD_SHOW_START, 3}, {CMD_SHOW_SYSINFO, 2}, {CMD_SHOW_PROCS, 4}, {0, 1}};
        for (const auto& [command, page] : choices) {
            app.ActivateView(1);
            choice = command;
            Tap(app.Tasks(), middle, 3);
            EXPECT_EQ(app.ActiveView()->Id(), page) << command;
        }
        app.ActivateView(1);
        choice = CMD_REFRESH;
        const size_t shown = enumWindows.calls.size();
        Tap(app.Tasks(), middle, 3);
        EXPECT_EQ(enumWindows.calls.size(), shown + 1) << "not refreshed";
    });
}

TEST_F(StripTapTest, TheTapIsHandledByDefaultAfterwards)
{
    InProgram([&](ProgramApp& app) {
        HWND page = app.Tasks().Window();
        const LONG width = ClientSize(page).cx;
        for (const LONG x : {LONG{0}, width / 2, width - 1}) {
            app.ActivateView(1);
            const SPY(DefWindowProcW) pass;
            Tap(app.Tasks(), x, 3);
            size_t passed = 0;
            for (const auto& call : pass.calls) {
                passed += call == std::make_tuple(page, UINT{WM_LBUTTONDOWN}, WPARAM{MK_LBUTTON},
                                                  LPARAM{MAKELPARAM(x, 3)})
                              ? 1U
                              : 0U;
            }
            EXPECT_EQ(passed, 1U) << x;
        }
    });
}
