// What the soft keys say, and where the page ends above them.
// profiles: pocketpc pocketpc-vga
// device's executable: pocketpc-vga
#include "rig/Picture.h"
#include "tests/e2e/ScreenText.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

class SoftKeyLabelsTest : public ShellSession
{
  protected:
    // The two texts on the bar's own ground, which its left edge shows.
    static Picture Painted(const Picture& bar, const std::wstring& left, const std::wstring& right)
    {
        const ScreenFont bold(FW_BOLD, 0);
        return Picture::Painted({bar.Width(), bar.Height()}, [&](HDC context) {
            for (int y = 0; y < bar.Height(); y++) {
                const RECT line = {0, y, bar.Width(), y + 1};
                const HBRUSH brush = CreateSolidBrush(bar.At(0, y));
                FillRect(context, &line, brush);
                DeleteObject(brush);
            }
            const HGDIOBJ before = SelectObject(context, bold.Handle());
            SetTextColor(context, RGB(255, 255, 255));
            SetBkMode(context, TRANSPARENT);
            RECT leftHalf = {0, 0, bar.Width() / 2, bar.Height()};
            RECT rightHalf = {bar.Width() / 2, 0, bar.Width(), bar.Height()};
            constexpr UINT format = DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX;
            DrawTextW(context, left.c_str(), -1, &leftHalf, format);
            DrawTextW(context, right.c_str(), -1, &rightHalf, format);
            SelectObject(context, before);
            return true;
        });
    }

    // But for the line between the keys.
    static bool Shows(HWND bar, const std::wstring& left, const std::wstring& right)
    {
        return WaitFor([&] {
            const Picture shown = Picture::OfScreen(ScreenRectOf(bar));
            const Picture expected = Painted(shown, left, right);
            for (int y = 0; y < shown.Height(); y++) {
                for (int x = 0; x < shown.Width(); x++) {
                    const bool divider = x >= shown.Width() / 2 && x < shown.Width() / 2 + Scaled(1);
                    if (!divider && shown.At(x, y) != expected.At(x, y)) {
                        return false;
                    }
                }
            }
            return true;
        });
    }
};

TEST_F(SoftKeyLabelsTest, EveryPageHasHideAndMenu)
{
    for (int page : pageRing) {
        ASSERT_TRUE(program->WaitForPage(page));
        EXPECT_TRUE(Shows(WaitFor([&] { return BarOf(main); }), L"Hide", L"Menu")) << page;
        PressKey(VK_RIGHT);
    }
}

TEST_F(SoftKeyLabelsTest, TheDialogsHaveTheirOwn)
{
    const HWND report = OpenReport();
    ASSERT_TRUE(report);
    EXPECT_TRUE(Shows(WaitFor([&] { return BarOf(report); }), L"Ok", L" "));
    PostMessageW(report, WM_COMMAND, IDOK, 0);
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(report) && IsWindowEnabled(main); }));
    const HWND windows = OpenWindowsList();
    ASSERT_TRUE(windows);
    EXPECT_TRUE(Shows(WaitFor([&] { return BarOf(windows); }), L"Done", L"Menu"));
}

TEST_F(SoftKeyLabelsTest, ThePageEndsWhereTheBarBegins)
{
    const RECT bar = ScreenRectOf(BarOf(main));
    EXPECT_EQ(bar.bottom, ScreenRect().bottom);
    EXPECT_EQ(bar.bottom - bar.top, Scaled(26));
    EXPECT_EQ(ScreenRectOf(main).bottom, bar.top);
    for (int page : pageRing) {
        ASSERT_TRUE(program->WaitForPage(page));
        EXPECT_EQ(ScreenRectOf(program->Page(page)).bottom, bar.top) << page;
        EXPECT_EQ(ScreenRectOf(program->List(page)).bottom, bar.top) << page;
        PressKey(VK_RIGHT);
    }
}
