// The fatal report's box on the screen: whole, readable, and with the caption of the active window.
// profiles: pocketpc pocketpc-vga
// device's executable: pocketpc-vga
#include "rig/Picture.h"
#include "tests/e2e/framework/FatalBoxSession.h"

using namespace rig;

class FaultBoxTest : public FatalBoxSession
{
  protected:
    void SetUp() override
    {
        ASSERT_NO_FATAL_FAILURE(FatalBoxSession::SetUp());
        ASSERT_TRUE(InFront(box));
    }

    // The visible parts of a class.
    std::vector<RECT> Parts(const wchar_t* className) const
    {
        std::vector<RECT> parts;
        for (HWND child = nullptr; (child = FindWindowExW(box, child, className, nullptr)) != nullptr;) {
            if (GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) {
                parts.push_back(ScreenRectOf(child));
            }
        }
        return parts;
    }
};

static bool IsWithin(const RECT& inner, const RECT& outer)
{
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

// Counted by the empty rows of pixels between them.
static int WrittenLines(const RECT& area)
{
    const Picture picture = Picture::OfScreen(area);
    int lines = 0;
    bool wasWritten = false;
    for (int y = 0; y < area.bottom - area.top; y++) {
        bool isWritten = false;
        for (int x = 0; x < area.right - area.left; x++) {
            isWritten = isWritten || GetGValue(picture.At(x, y)) < 120;
        }
        lines += isWritten && !wasWritten ? 1 : 0;
        wasWritten = isWritten;
    }
    return lines;
}

TEST_F(FaultBoxTest, ItIsWithinTheScreen)
{
    EXPECT_TRUE(IsWithin(ScreenRectOf(box), ScreenRect()));
}

TEST_F(FaultBoxTest, ItsSignTextAndButtonAreWithinItAndApart)
{
    std::vector<RECT> parts = Parts(L"Static");
    ASSERT_EQ(2u, parts.size());
    const std::vector<RECT> buttons = Parts(L"Button");
    ASSERT_EQ(1u, buttons.size());
    parts.push_back(buttons.front());
    for (size_t i = 0; i < parts.size(); i++) {
        EXPECT_TRUE(IsWithin(parts[i], ScreenRectOf(box))) << i;
        for (size_t k = 0; k < i; k++) {
            RECT common = {};
            EXPECT_FALSE(IntersectRect(&common, &parts[i], &parts[k])) << i << " and " << k;
        }
    }
    // In the middle of the width, to the pixel.
    const RECT whole = ScreenRectOf(box);
    const LONG left = buttons.front().left - whole.left;
    const LONG right = whole.right - buttons.front().right;
    EXPECT_LE(std::abs(left - right), 1);
}

// The function and the reason take two lines each in this width, the number one.
TEST_F(FaultBoxTest, TheWholeTextCanBeRead)
{
    const HWND text = GetDlgItem(box, 0xFFFF);
    ASSERT_TRUE(text);
    ASSERT_NE(std::wstring::npos, TextOf(text).find(L"Error opening ZRS resource"));
    EXPECT_TRUE(WaitFor([&] { return WrittenLines(ScreenRectOf(text)) == 5; }))
        << WrittenLines(ScreenRectOf(text));
}

TEST_F(FaultBoxTest, ItHasTheCaptionOfAnActiveWindow)
{
    const RECT whole = ScreenRectOf(box);
    const LONG left = whole.left + 6;
    const LONG top = whole.top + 4;
    EXPECT_TRUE(WaitFor([&] {
        return Picture::OfScreen({left, top, left + 60, top + 10}).Count(RGB(41, 73, 132)) > 100;
    }));
}
