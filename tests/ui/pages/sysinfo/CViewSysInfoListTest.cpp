// The system information page: its list, its measures, and what showing and refreshing it do.
// profiles: pocketpc pocketpc-vga smartphone
#include "tests/support/Fatal.h"
#include "tests/ui/pages/sysinfo/ShownSysInfo.h"

#include <algorithm>

class CViewSysInfoListTest : public ShownSysInfo
{
  protected:
    static LOGFONTW FontOf(HGDIOBJ font)
    {
        LOGFONTW description = {};
        GetObjectW(font, sizeof description, &description);
        return description;
    }

    static RECT ListPlace(ProgramApp& app)
    {
        RECT rect = WindowRect(List(app));
        MapWindowPoints(nullptr, Page(app).Window(), reinterpret_cast<POINT*>(&rect), 2);
        return rect;
    }
};

TEST_F(CViewSysInfoListTest, TheDeviceIsAskedWheneverThePageIsShownAndNotBefore)
{
    InProgram([&](ProgramApp& app) {
        EXPECT_TRUE(device.calls.empty());
        EXPECT_EQ(Page(app).RowCount(), 0u);
        app.ActivateView(2);
        // Showing a page may activate the program, which refreshes it: then there are two collections.
        ASSERT_GE(device.calls.size(), 4u);
        const std::vector<std::wstring> last(device.calls.end() - 4, device.calls.end());
        EXPECT_EQ(last, (std::vector<std::wstring>{L"memory", L"size \\", L"first card", L"power"}));
        EXPECT_EQ(Page(app).RowCount(), 3u);
        EXPECT_EQ(SendMessageW(List(app), LVM_GETITEMCOUNT, 0, 0), 3);
    });
}

TEST_F(CViewSysInfoListTest, ShowingThePageSelectsAndShowsItsFirstRow)
{
    device.AddCards(20);
    OnPage([&](ProgramApp& app) {
        ExpectSelected(app, 0);
        EXPECT_EQ(GetFocus(), List(app));
        Select(app, 22);
        EXPECT_GT(TopRow(app), 0);
        app.ActivateView(3);
        device.cards.pop_back();
        const SPY(UpdateWindow) update;
        app.ActivateView(2);
        ExpectSelected(app, 0);
        EXPECT_EQ(TopRow(app), 0);
        EXPECT_EQ(GetFocus(), List(app));
        EXPECT_EQ(Page(app).RowCount(), 22u) << "collected anew";
        for (HWND painted : {List(app), Page(app).Window()}) {
            EXPECT_NE(std::find(update.calls.begin(), update.calls.end(), std::make_tuple(painted)),
                      update.calls.end());
        }
    });
}

TEST_F(CViewSysInfoListTest, TheListIsToldTheNewNumberOnceTheRowsAreThere)
{
    device.AddCards(2);
    OnPage([&](ProgramApp& app) {
        std::vector<std::pair<WPARAM, LPARAM>> told;
        const SPY(SendMessageW) send([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
            if (message == LVM_SETITEMCOUNT) {
                EXPECT_EQ(Page(app).RowCount(), wParam);
                EXPECT_EQ(device.calls.back(), L"power");
                told.emplace_back(wParam, lParam);
            }
            return send.Real(window, message, wParam, lParam);
        });
        device.AddCards(1);
        Page(app).FillContents(4);
        device.hasBattery = false;
        Page(app).FillContents(-1);
        EXPECT_EQ(told, (std::vector<std::pair<WPARAM, LPARAM>>{{6, 0}, {5, 0}}));
    });
}

TEST_F(CViewSysInfoListTest, TheRowToKeepDoesNotMatterToTheRows)
{
    device.AddCards(2);
    OnPage([&](ProgramApp& app) {
        Select(app, 2);
        for (const int row : {0, 1, 4, 5, 1000, -1, -1000}) {
            Page(app).FillContents(row);
            EXPECT_EQ(Page(app).RowCount(), 5u);
            ExpectSelected(app, 2);
        }
    });
}

TEST_F(CViewSysInfoListTest, ARefreshAsksAnewKeepsTheRowAndPaintsAtOnce)
{
    device.AddCards(3);
    OnPage([&](ProgramApp& app) {
        Select(app, 3);
        device.battery.BatteryLifePercent = 10;
        device.AddCard(L"New", 20, 2);
        device.calls.clear();
        const SPY(UpdateWindow) update;
        Run(app, CMD_REFRESH);
        EXPECT_EQ(device.calls.front(), L"memory");
        EXPECT_EQ(std::count(device.calls.begin(), device.calls.end(), L"power"), 1);
        EXPECT_EQ(Page(app).RowCount(), 7u);
        EXPECT_STREQ(Page(app).Row(5).name, L"New");
        EXPECT_EQ(Page(app).Row(6).Used(), 10);
        ExpectSelected(app, 3);
        EXPECT_NE(std::find(update.calls.begin(), update.calls.end(), std::make_tuple(List(app))),
                  update.calls.end());
        EXPECT_EQ(SendMessageW(List(app), LVM_GETCOLUMNWIDTH, 0, 0), ClientSize(List(app)).cx);
    });
}

TEST_F(CViewSysInfoListTest, AMarkBehindTheLastRowMovesToIt)
{
    device.AddCards(5);
    OnPage([&](ProgramApp& app) {
        Select(app, 7);
        device.cards.clear();
        Run(app, CMD_REFRESH);
        ExpectSelected(app, 2);
        device.hasBattery = false;
        Run(app, CMD_REFRESH);
        ExpectSelected(app, 1);
    });
}

TEST_F(CViewSysInfoListTest, ARowThatIsNotThereIsFatalUnderItsArraysName)
{
    const auto past = [&] { OnPage([](ProgramApp& app) { Page(app).Row(3); }); };
    EXPECT_FATAL(past(), L"CArray<struct SSysInfo *>::At", L"Out of range");
}

TEST_F(CViewSysInfoListTest, BothFontsAreTheSystemFontTwoSmaller)
{
    InProgram([](ProgramApp& app) {
        const LOGFONTW system = FontOf(GetStockObject(SYSTEM_FONT));
        const LOGFONTW bold = FontOf(Page(app).Look().BoldFont());
        const LOGFONTW normal = FontOf(Page(app).Look().NormalFont());
        EXPECT_EQ(bold.lfWeight, 700);
        EXPECT_EQ(bold.lfHeight, system.lfHeight + 2);
        EXPECT_EQ(normal.lfWeight, 400);
        EXPECT_EQ(normal.lfHeight, system.lfHeight + 2);
        EXPECT_STREQ(bold.lfFaceName, system.lfFaceName);
        EXPECT_STREQ(normal.lfFaceName, system.lfFaceName);
    });
}

TEST_F(CViewSysInfoListTest, TheStripIsALineOfItsBoldTextAndNinePixelsHigh)
{
    InProgram([](ProgramApp& app) {
        EXPECT_EQ(Page(app).HeaderHeight(), LineHeight(Page(app).Look().BoldFont()) + Y(1) + Y(8));
        const SIZE client = ClientSize(Page(app).Window());
        EXPECT_EQ(ListPlace(app), (RECT{0, Page(app).HeaderHeight(), client.cx, client.cy}));
    });
}

TEST_F(CViewSysInfoListTest, ARowIsAsHighAsTwoBoldLinesOrAsItsPicture)
{
    const struct
    {
        int iconWidth;
        int picture;
    } cases[] = {{16, 32}, {17, 48}, {32, 48}};
    for (const auto& each : cases) {
        const SPY(ImageList_GetIconSize) size([&](HIMAGELIST, int* width, int* height) {
            *width = *height = each.iconWidth;
            return TRUE;
        });
        InProgram([&](ProgramApp& app) {
            EXPECT_EQ(Page(app).Look().Icons().LargeSize(), each.picture);
            const int line = LineHeight(Page(app).Look().BoldFont()) + Y(1);
            const int text = line + Y(4) + line;
            EXPECT_EQ(MeasuredHeight(app), std::max(text, each.picture + Y(6))) << each.iconWidth;
            RECT row = {LVIR_BOUNDS, 0, 0, 0};
            app.ActivateView(2);
            SendMessageW(List(app), LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
            EXPECT_EQ(row.bottom - row.top, MeasuredHeight(app)) << "as the list has it";
        });
    }
}

TEST_F(CViewSysInfoListTest, TheTextsAndThePictureEachDecideTheHeightOnce)
{
    // Text of any height the test likes, in both of the list's fonts.
    LONG textHeight = 0;
    const SPY(GetTextMetricsW) metrics([&](HDC target, TEXTMETRICW* out) {
        const BOOL known = metrics.Real(target, out);
        out->tmHeight = textHeight;
        out->tmExternalLeading = 2;
        return known;
    });
    InProgram([&](ProgramApp& app) {
        const int picture = Page(app).Look().Icons().LargeSize() + Y(6);
        textHeight = 1;
        EXPECT_EQ(MeasuredHeight(app), picture);
        textHeight = picture;
        EXPECT_EQ(MeasuredHeight(app), 2 * (picture + 2 + Y(1)) + Y(4));
    });
}

TEST_F(CViewSysInfoListTest, SizesOfNothingDoNoHarm)
{
    device.AddCards(10);
    OnPage([&](ProgramApp& app) {
        const SIZE before = ClientSize(app.MainWindow());
        for (const LPARAM size : {MAKELPARAM(0, 0), MAKELPARAM(1, 1), MAKELPARAM(3, 300),
                                  MAKELPARAM(before.cx, 5), MAKELPARAM(before.cx, before.cy)}) {
            SendMessageW(app.MainWindow(), WM_SIZE, 0, size);
            Run(app, CMD_REFRESH);
            InvalidateRect(List(app), nullptr, TRUE);
            UpdateWindow(List(app));
            EXPECT_EQ(Page(app).RowCount(), 13u);
            ExpectSelected(app, 0);
        }
        EXPECT_EQ(ListPlace(app), (RECT{0, Page(app).HeaderHeight(), before.cx, before.cy}));
        EXPECT_EQ(SendMessageW(List(app), LVM_GETCOLUMNWIDTH, 0, 0), ClientSize(List(app)).cx);
    });
}

TEST_F(CViewSysInfoListTest, ManyRowsScroll)
{
    device.AddCards(40);
    OnPage([&](ProgramApp& app) {
        SendMessageW(List(app), WM_KEYDOWN, VK_END, 1);
        ExpectSelected(app, 42);
        EXPECT_TRUE(IsVisibleRow(app, 42));
        std::vector<std::wstring> titles;
        const SPY(DrawTextW) draw([&](HDC target, const wchar_t* text, int length, RECT* rect, UINT flags) {
            titles.emplace_back(text);
            return draw.Real(target, text, length, rect, flags);
        });
        InvalidateRect(List(app), nullptr, FALSE);
        UpdateWindow(List(app));
        const std::wstring top = Page(app).Row(static_cast<uint32_t>(TopRow(app))).name.Buffer();
        ASSERT_FALSE(titles.empty());
        EXPECT_EQ(titles.front(), top);
        EXPECT_NE(std::find(titles.begin(), titles.end(), L"Battery"), titles.end());
        EXPECT_EQ(std::find(titles.begin(), titles.end(), L"Physical memory"), titles.end());
        SendMessageW(List(app), WM_KEYDOWN, VK_HOME, 1);
        EXPECT_EQ(TopRow(app), 0);
    });
}
