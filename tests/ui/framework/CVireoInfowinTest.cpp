// CVireoInfowin: its window, its place, its timers and its look.
// profiles: pocketpc pocketpc-vga
#include "framework/CVireoInfowin.h"
#include "framework/Gdi.h"
#include "tests/support/Fatal.h"
#include "tests/ui/Pixels.h"
#include "tests/ui/UiTest.h"

class CVireoInfowinTest : public UiTest
{
  protected:
    static void WithInfo(const std::function<void(TestApp&, CVireoInfowin&)>& test)
    {
        InApp([&](TestApp& app) {
            CVireoInfowin info;
            info.Construct();
            test(app, info);
        });
    }

    struct Measures
    {
        int lineGap;
        int digit;
        SIZE popup;
    };

    // What a text needs over a main window with that client area.
    static Measures Measure(const wchar_t* text, SIZE client)
    {
        const ScreenDC screen;
        const Selection font(screen, GetStockObject(SYSTEM_FONT));
        TEXTMETRICW metrics = {};
        GetTextMetricsW(screen, &metrics);
        Measures measures = {};
        measures.lineGap = metrics.tmHeight + metrics.tmExternalLeading + 1;
        SIZE zero = {};
        GetTextExtentExPointW(screen, L"0", 1, 0, nullptr, nullptr, &zero);
        measures.digit = zero.cx;
        const int half = measures.lineGap / 2;
        RECT rect = {measures.digit, half, MulDiv(client.cx, 70, 100) - measures.digit,
                     MulDiv(client.cy, 70, 100) - half};
        DrawTextW(screen, text, -1, &rect, DT_CALCRECT | DT_WORDBREAK);
        measures.popup = {rect.right + measures.digit / 2, rect.bottom + half};
        return measures;
    }
};

static constexpr const wchar_t* longText =
    L"A notice that is much too long for one line of a small screen and is wrapped at its words.";

TEST_F(CVireoInfowinTest, EachHasAClassNamedAfterItsAddress)
{
    WithInfo([this](TestApp& app, CVireoInfowin& info) {
        const auto address = static_cast<uint32_t>(reinterpret_cast<UINT_PTR>(&info));
        const WNDCLASSW registered = Class(L"ui_testsIW" + std::to_wstring(address)).windowClass;
        EXPECT_EQ(registered.style, static_cast<UINT>(CS_HREDRAW | CS_VREDRAW));
        EXPECT_EQ(registered.hbrBackground, reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(1)));
        EXPECT_EQ(registered.hInstance, app.Instance());
        for (const CVireoInfowin* own : {app.infoWindow, app.secondInfoWindow}) {
            const auto ownAddress = static_cast<uint32_t>(reinterpret_cast<UINT_PTR>(own));
            Class(L"ui_testsIW" + std::to_wstring(ownAddress));
        }
    });
}

TEST_F(CVireoInfowinTest, ItIsAHiddenPopupWithoutTitleOwnedByTheMainWindow)
{
    InApp([](TestApp& app) {
        CVireoInfowin info;
        const SPY(CreateWindowExW) create([&](DWORD exStyle, const wchar_t* className, const wchar_t* title,
                                              DWORD style, int x, int y, int width, int height, HWND parent,
                                              HMENU menu, HINSTANCE instance, void* parameter) {
            EXPECT_EQ(title, nullptr);
            EXPECT_EQ(style, static_cast<DWORD>(WS_POPUP));
            for (const int value : {x, y, width, height}) {
                EXPECT_EQ(value, 0);
            }
            EXPECT_EQ(parent, app.MainWindow());
            return create.Real(exStyle, className, title, style, x, y, width, height, parent, menu, instance,
                               parameter);
        });
        info.Construct();
        EXPECT_EQ(create.calls.size(), 1U);
        EXPECT_FALSE(IsWindowVisible(info.Window()));
        EXPECT_EQ(GetWindow(info.Window(), GW_OWNER), app.MainWindow());
    });
}

TEST_F(CVireoInfowinTest, AFailedClassIsFatal)
{
    EXPECT_FATAL(InApp([this](TestApp&) {
                     registerClass.instead = [](const WNDCLASSW*) -> ATOM { return 0; };
                     CVireoInfowin().Construct();
                 }),
                 L"CVireoInfowin::Construct", L"Error");
}

TEST_F(CVireoInfowinTest, ItIsAsLargeAsItsTextNeeds)
{
    WithInfo([](TestApp& app, CVireoInfowin& info) {
        const SIZE client = ClientSize(app.MainWindow());
        for (const wchar_t* text : {L"Saved", longText, L"Two\nlines"}) {
            info.Show(text, 0, 0, 0);
            const SIZE expected = Measure(text, client).popup;
            const RECT rect = WindowRect(info.Window());
            EXPECT_EQ(rect.right - rect.left, expected.cx);
            EXPECT_EQ(rect.bottom - rect.top, expected.cy);
        }
        EXPECT_LE(Measure(longText, client).popup.cx, client.cx * 7 / 10 + 1);
    });
}

TEST_F(CVireoInfowinTest, ItsTextHasSeventyPercentOfTheMainWindowRoundedHalfUp)
{
    WithInfo([](TestApp& app, CVireoInfowin& info) {
        const struct
        {
            int size;
            int usable;
        } cases[] = {{200, 140}, {201, 141}, {202, 141}, {203, 142}, {204, 143},
                     {205, 144}, {206, 144}, {207, 145}, {208, 146}, {209, 146}};
        const Measures of = Measure(L"", {200, 200});
        for (const auto& each : cases) {
            MoveWindow(app.MainWindow(), 0, 30, each.size, each.size, FALSE);
            RECT room = {};
            const SPY(DrawTextW)
                draw([&](HDC target, const wchar_t* text, int length, RECT* rect, UINT format) {
                    if (format & DT_CALCRECT) {
                        room = *rect;
                        EXPECT_EQ(format, static_cast<UINT>(DT_CALCRECT | DT_WORDBREAK));
                    }
                    return draw.Real(target, text, length, rect, format);
                });
            info.Show(longText, 0, 0, 0);
            EXPECT_EQ(room,
                      (RECT{of.digit, of.lineGap / 2, each.usable - of.digit, each.usable - of.lineGap / 2}));
        }
    });
}

TEST_F(CVireoInfowinTest, ItsTextIsDrawnWhereItWasMeasuredInTheSystemFont)
{
    WithInfo([](TestApp&, CVireoInfowin& info) {
        for (const wchar_t* text : {L"Saved", longText}) {
            RECT measured = {};
            std::vector<RECT> drawn;
            const SPY(DrawTextW)
                draw([&](HDC target, const wchar_t* shown, int length, RECT* rect, UINT format) {
                    EXPECT_EQ(GetCurrentObject(target, OBJ_FONT), GetStockObject(SYSTEM_FONT));
                    const bool measuring = (format & DT_CALCRECT) != 0;
                    if (!measuring) {
                        drawn.push_back(*rect);
                    }
                    const int height = draw.Real(target, shown, length, rect, format);
                    if (measuring) {
                        measured = *rect;
                    }
                    return height;
                });
            info.Show(text, 0, 0, 0);
            ASSERT_FALSE(drawn.empty());
            for (const RECT& each : drawn) {
                EXPECT_EQ(each, measured);
            }
        }
    });
}

TEST_F(CVireoInfowinTest, ItIsPlacedByItsBitsWithoutTheMainWindowsLeftEdge)
{
    WithInfo([](TestApp& app, CVireoInfowin& info) {
        MoveWindow(app.MainWindow(), 15, 33, 201, 222, FALSE);
        const int left = 15;
        const int top = 33;
        const int right = 216;
        const int bottom = 255;
        const Measures of = Measure(L"Saved", {201, 222});
        const int w = of.popup.cx;
        const int h = of.popup.cy;
        const int xs[] = {of.digit, (right - w - left) / 2, right - w - left - of.digit,
                          (right - w - left) / 2};
        const int ys[] = {top + of.lineGap / 2, top + (bottom - h - top) / 2, bottom - h - of.lineGap,
                          top + (bottom - h - top) / 2};
        for (uint32_t horizontal = 0; horizontal < 4; horizontal++) {
            for (uint32_t vertical = 0; vertical < 4; vertical++) {
                info.Show(L"Saved", 0, horizontal + 16 * vertical, 0);
                const RECT rect = WindowRect(info.Window());
                EXPECT_EQ(rect.left, xs[horizontal]) << horizontal;
                EXPECT_EQ(rect.top, ys[vertical]) << vertical;
            }
        }
    });
}

TEST_F(CVireoInfowinTest, ShowingTakesNeitherFocusNorActivation)
{
    WithInfo([](TestApp& app, CVireoInfowin& info) {
        SetFocus(app.MainWindow());
        TakeEvents();
        NameWindow(info.Window(), "info");
        const SPY(SetWindowPos)
            place([&](HWND window, HWND after, int x, int y, int width, int height, UINT flags) {
                EXPECT_EQ(window, info.Window());
                EXPECT_EQ(after, HWND_TOPMOST);
                EXPECT_EQ(flags, static_cast<UINT>(SWP_SHOWWINDOW | SWP_NOACTIVATE));
                Note("place");
                return place.Real(window, after, x, y, width, height, flags);
            });
        const SPY(InvalidateRect) invalidate([&](HWND window, const RECT* rect, BOOL erase) {
            Note("invalidate " + NameOf(window));
            return invalidate.Real(window, rect, erase);
        });
        const SPY(UpdateWindow) update([&](HWND window) {
            Note("update " + NameOf(window));
            return update.Real(window);
        });
        info.Show(L"Saved", 0, 0, 0);
        EXPECT_EQ(TakeEvents(), (Events{"place", "invalidate info", "update info"}));
        EXPECT_EQ(GetFocus(), app.MainWindow());
        EXPECT_EQ(GetActiveWindow(), app.MainWindow());
        EXPECT_TRUE(IsWindowVisible(info.Window()));
    });
}

TEST_F(CVireoInfowinTest, TimersRunOnlyForTimesGiven)
{
    WithInfo([](TestApp&, CVireoInfowin& info) {
        const SPY(SetTimer) set([&](HWND window, UINT_PTR id, UINT time, TIMERPROC procedure) {
            EXPECT_EQ(procedure, nullptr);
            Note("set " + NameOf(window) + " " + std::to_string(id) + " " + std::to_string(time));
            return set.Real(window, id, time, procedure);
        });
        const SPY(KillTimer) kill([&](HWND window, UINT_PTR id) {
            Note("kill " + NameOf(window) + " " + std::to_string(id));
            return kill.Real(window, id);
        });
        TakeEvents();
        NameWindow(info.Window(), "info");
        info.Show(L"Saved", 0, 0, 0);
        EXPECT_TRUE(TakeEvents().empty());
        info.Show(L"Saved", 60000, 0, 0);
        EXPECT_EQ(TakeEvents(), (Events{"set info 100 60000"}));
        info.Show(L"Saved", 50000, 0, 40000);
        EXPECT_EQ(TakeEvents(), (Events{"kill info 100", "set info 100 50000", "set info 101 40000"}));
        info.Hide();
        EXPECT_EQ(TakeEvents(), (Events{"kill info 100", "kill info 101"}));
        EXPECT_FALSE(IsWindowVisible(info.Window()));
        {
            CVireoInfowin shortLived;
            shortLived.Construct();
            NameWindow(shortLived.Window(), "info");
            shortLived.Show(L"Saved", 60000, 0, 60000);
            TakeEvents();
        }
        EXPECT_EQ(TakeEvents(), (Events{"kill info 100", "kill info 101"}));
    });
}

TEST_F(CVireoInfowinTest, ItHidesItselfAfterItsTime)
{
    WithInfo([](TestApp&, CVireoInfowin& info) {
        info.Show(L"Saved", 30, 0, 0);
        EXPECT_TRUE(IsWindowVisible(info.Window()));
        EXPECT_TRUE(PumpUntil([&] { return !IsWindowVisible(info.Window()); }));
        EXPECT_FALSE(KillTimer(info.Window(), 100)) << "the timer still ran";
    });
}

TEST_F(CVireoInfowinTest, WithoutATimeItStaysUntilATap)
{
    WithInfo([](TestApp&, CVireoInfowin& info) {
        SPY(DefWindowProcW) pass;
        info.Show(L"Saved", 0, 0, 60000);
        EXPECT_FALSE(KillTimer(info.Window(), 100));
        pass.calls.clear();
        SendMessageW(info.Window(), WM_LBUTTONDOWN, 1, MAKELPARAM(2, 3));
        EXPECT_FALSE(IsWindowVisible(info.Window()));
        EXPECT_FALSE(KillTimer(info.Window(), 101)) << "the timer still ran";
        ASSERT_FALSE(pass.calls.empty());
        EXPECT_EQ(pass.calls.back(),
                  std::make_tuple(info.Window(), UINT{WM_LBUTTONDOWN}, WPARAM{1}, LPARAM{MAKELPARAM(2, 3)}));
    });
}

TEST_F(CVireoInfowinTest, ItHasAFrameAndItsTextInHighlightColours)
{
    WithInfo([](TestApp&, CVireoInfowin& info) {
        constexpr COLORREF frame = RGB(1, 90, 2);
        constexpr COLORREF field = RGB(3, 4, 120);
        constexpr COLORREF written = RGB(220, 210, 5);
        const SPY(GetSysColor) colour([](int) { return written; });
        const SPY(GetSysColorBrush) brush([](int index) {
            static HBRUSH brushes[] = {CreateSolidBrush(frame), CreateSolidBrush(field)};
            EXPECT_TRUE(index == COLOR_WINDOWFRAME || index == COLOR_HIGHLIGHT) << index;
            return brushes[index == COLOR_WINDOWFRAME ? 0 : 1];
        });
        const SPY(DrawTextW) draw([&](HDC target, const wchar_t* text, int length, RECT* rect, UINT format) {
            if ((format & DT_CALCRECT) == 0) {
                EXPECT_STREQ(text, longText);
                EXPECT_NE(format & DT_WORDBREAK, 0U);
                EXPECT_EQ(GetBkMode(target), TRANSPARENT);
            }
            return draw.Real(target, text, length, rect, format);
        });
        info.Show(longText, 0, 0, 0);
        const Pixels pixels = Pixels::Of(info.Window());
        const RECT all = pixels.All();
        EXPECT_EQ(pixels.Count(all, frame), 2 * all.right + 2 * all.bottom - 4);
        EXPECT_EQ(pixels.Count({1, 1, all.right - 1, all.bottom - 1}, frame), 0);
        EXPECT_GT(pixels.Count(all, written), 0);
        EXPECT_GT(pixels.Count(all, field), all.right * all.bottom / 2);
    });
}

TEST_F(CVireoInfowinTest, EachTickOfTheBlinkTimerHidesOrShowsTheText)
{
    WithInfo([](TestApp&, CVireoInfowin& info) {
        constexpr COLORREF written = RGB(220, 210, 5);
        const SPY(GetSysColor) colour([](int) { return written; });
        const auto visible = [&] {
            UpdateWindow(info.Window());
            const Pixels pixels = Pixels::Of(info.Window());
            return pixels.Count(pixels.All(), written) > 0;
        };
        info.Show(L"Saved", 0, 0, 60000);
        EXPECT_TRUE(visible());
        for (const bool expected : {false, true, false}) {
            SendMessageW(info.Window(), WM_TIMER, 101, 0);
            EXPECT_EQ(visible(), expected);
        }
        info.Show(L"Saved again", 0, 0, 60000);
        EXPECT_TRUE(visible()) << "a new notice begins with its text";
        EXPECT_TRUE(IsWindowVisible(info.Window()));
    });
}
