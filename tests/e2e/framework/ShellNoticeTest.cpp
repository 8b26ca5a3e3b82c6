// The timed notice: its place, its time, and the tap that takes it away.
#include "rig/Actor.h"
#include "rig/Controls.h"
#include "rig/Picture.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;
using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

// How long the program shows a notice. A machine may be late by any time, but never early by more than a
// tick.
static constexpr milliseconds noticeTime{3000 - 50};

static milliseconds Since(Clock::time_point start)
{
    return std::chrono::duration_cast<milliseconds>(Clock::now() - start);
}

namespace {

// The handheld's system font, for measuring.
class SystemFontScreen
{
    HDC screen = GetDC(nullptr);
    HFONT font =
        CreateFontW(-MulDiv(9, GetDeviceCaps(screen, LOGPIXELSY), 72), 0, 0, 0, FW_NORMAL, FALSE, FALSE,
                    FALSE, DEFAULT_CHARSET, 0, 0, CLEARTYPE_QUALITY, 0, L"DejaVu Sans Condensed");

  public:
    SystemFontScreen() { SelectObject(screen, font); }
    ~SystemFontScreen()
    {
        ReleaseDC(nullptr, screen);
        DeleteObject(font);
    }
    SystemFontScreen(const SystemFontScreen&) = delete;
    SystemFontScreen& operator=(const SystemFontScreen&) = delete;

    int LineGap() const
    {
        TEXTMETRICW metrics = {};
        GetTextMetricsW(screen, &metrics);
        return metrics.tmHeight + metrics.tmExternalLeading + 1;
    }
    SIZE Extent(const wchar_t* text) const
    {
        SIZE size = {};
        GetTextExtentPoint32W(screen, text, lstrlenW(text), &size);
        return size;
    }
};

} // namespace

class ShellNoticeTest : public ShellSession
{
  protected:
    HWND ShowNotice() const
    {
        program->Command(SettingsCommand);
        return WaitFor([&] { return program->Notice(); });
    }

    void ExpectNone() const
    {
        EXPECT_TRUE(WaitFor([&] { return !program->Notice(); })) << "the notice stays";
    }
};

TEST_F(ShellNoticeTest, ItStandsAtTheTopRightAndFitsItsText)
{
    const HWND notice = ShowNotice();
    ASSERT_TRUE(notice);
    const SystemFontScreen font;
    const RECT area = ScreenRectOf(main);
    const RECT rect = ScreenRectOf(notice);
    const int half = font.LineGap() / 2;
    const LONG digit = font.Extent(L"0").cx;
    const SIZE text = font.Extent(L"Settings cmd");
    EXPECT_EQ(digit + text.cx + digit / 2, rect.right - rect.left);
    EXPECT_EQ(half + text.cy + half, rect.bottom - rect.top);
    EXPECT_EQ(area.right - digit, rect.right);
    EXPECT_EQ(area.top + half, rect.top);
    EXPECT_EQ(main, GetWindow(notice, GW_OWNER));
    EXPECT_EQ(main, GetForegroundWindow()) << "it took the front";
}

TEST_F(ShellNoticeTest, ItIsAFramedBoxInTheSelectionsColours)
{
    const HWND notice = ShowNotice();
    ASSERT_TRUE(notice);
    const RECT rect = ScreenRectOf(notice);
    const COLORREF ground = GetSysColor(COLOR_HIGHLIGHT);
    const COLORREF frame = GetSysColor(COLOR_WINDOWFRAME);
    // The page below it is white as the text is, so the ground comes first.
    ASSERT_TRUE(WaitFor([&] { return Picture::OfScreen(rect).At(1, 1) == ground; })) << "it is not painted";
    EXPECT_TRUE(WaitFor([&] { return Picture::OfScreen(rect).Count(GetSysColor(COLOR_HIGHLIGHTTEXT)) > 10; }))
        << "no text can be seen";
    const Picture box = Picture::OfScreen(rect);
    const int right = box.Width() - 1;
    const int bottom = box.Height() - 1;
    EXPECT_EQ(box.Width(), box.Count(frame, {0, 0, box.Width(), 1}));
    EXPECT_EQ(box.Width(), box.Count(frame, {0, bottom, box.Width(), bottom + 1}));
    EXPECT_EQ(box.Height(), box.Count(frame, {0, 0, 1, box.Height()}));
    EXPECT_EQ(box.Height(), box.Count(frame, {right, 0, right + 1, box.Height()}));
    EXPECT_EQ(ground, box.At(1, 1));
    EXPECT_EQ(ground, box.At(right - 1, bottom - 1));
}

TEST_F(ShellNoticeTest, ItGoesAfterThreeSeconds)
{
    const auto before = Clock::now();
    ASSERT_TRUE(ShowNotice());
    ExpectNone();
    EXPECT_GE(Since(before), noticeTime);
    EXPECT_EQ(main, GetForegroundWindow());
}

TEST_F(ShellNoticeTest, AnotherOneBeginsTheTimeAnew)
{
    ASSERT_TRUE(ShowNotice());
    const auto first = Clock::now();
    WaitFor([&] { return Since(first) > milliseconds(1500) || !program->Notice(); });
    ASSERT_TRUE(program->Notice()) << "it went too early";
    const auto second = Clock::now();
    ASSERT_TRUE(ShowNotice());
    ExpectNone();
    EXPECT_GE(Since(second), noticeTime);
}

TEST_F(ShellNoticeTest, ATapTakesItAway)
{
    // That it was the tap can be told only when it has gone before its time; a busy machine gets another try.
    bool early = false;
    for (int tries = 0; !early && tries < 10; tries++) {
        const auto before = Clock::now();
        const HWND notice = ShowNotice();
        ASSERT_TRUE(notice);
        const RECT rect = ScreenRectOf(notice);
        Tap({(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2});
        ExpectNone();
        early = Since(before) < noticeTime;
    }
    EXPECT_TRUE(early) << "it goes by itself only";
    // The tap was the notice's, not the list's below it; and the next notice has its full time.
    ASSERT_TRUE(InFront(main));
    const auto again = Clock::now();
    ASSERT_TRUE(ShowNotice());
    ExpectNone();
    EXPECT_GE(Since(again), noticeTime);
}

TEST_F(ShellNoticeTest, ItDoesNotTakeTheKeys)
{
    ASSERT_TRUE(ShowNotice());
    ExpectKeysReachThePage(TasksPage);
    EXPECT_TRUE(program->Notice()) << "stepping through the pages takes it away";
}

TEST_F(ShellNoticeTest, AnotherTextReplacesTheFirst)
{
    SettledCount(); // a refresh between the end of the task and the command would drop its row
    const Actor actor;
    const HWND window = actor.Make({.title = L"Short life"});
    ASSERT_TRUE(Raise(window));
    ASSERT_TRUE(Raise(main));
    const HWND list = program->List(TasksPage);
    program->Command(RefreshCommand);
    PressKey(VK_HOME);
    PressKey(VK_DOWN); // the program that was in front before
    ASSERT_TRUE(WaitFor([=] { return ListMark(list) == 1; }));
    actor.Vanish(window);
    program->Command(WindowsListCommand);
    ASSERT_TRUE(WaitFor([&] { return program->Notice(); }));
    const SystemFontScreen font;
    const auto widthFor = [&](const wchar_t* text) {
        const LONG digit = font.Extent(L"0").cx;
        return digit + font.Extent(text).cx + digit / 2;
    };
    const auto width = [&] {
        const RECT rect = ScreenRectOf(program->Notice());
        return rect.right - rect.left;
    };
    EXPECT_EQ(widthFor(L"Window is no longer exists."), width());
    program->Command(SettingsCommand);
    EXPECT_TRUE(WaitFor([&] { return width() == widthFor(L"Settings cmd"); }));
    int notices = 0;
    for (HWND top : TopWindows()) {
        notices += IsWindowVisible(top) && ClassOf(top).starts_with(L"QuorvaneIW") ? 1 : 0;
    }
    EXPECT_EQ(1, notices);
}
