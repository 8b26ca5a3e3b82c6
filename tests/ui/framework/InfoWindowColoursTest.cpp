// The notice popup: the system colours of its text, its ground and its frame, and a window that cannot be
// made. profiles: pocketpc pocketpc-vga
#include "framework/CVireoInfowin.h"
#include "tests/support/Fatal.h"
#include "tests/ui/Pixels.h"
#include "tests/ui/UiTest.h"

class InfoWindowColoursTest : public UiTest
{
  protected:
    // A colour of its own for every system colour.
    static COLORREF Distinct(int index) { return RGB(10 + 4 * index, 7, 200 - 3 * index); }
};

TEST_F(InfoWindowColoursTest, EveryPartHasItsSystemColour)
{
    InApp([](TestApp&) {
        std::vector<HBRUSH> made;
        const SPY(GetSysColor) colour([](int index) { return Distinct(index); });
        const SPY(GetSysColorBrush) brush([&](int index) {
            made.push_back(CreateSolidBrush(Distinct(index)));
            return made.back();
        });
        CVireoInfowin info;
        info.Construct();
        info.Show(L"MMMM WWWW", 0, 0, 0);
        const Pixels pixels = Pixels::Of(info.Window());
        const RECT all = pixels.All();
        const int frame = pixels.Count(all, Distinct(COLOR_WINDOWFRAME));
        const int ground = pixels.Count(all, Distinct(COLOR_HIGHLIGHT));
        const int text = pixels.Count(all, Distinct(COLOR_HIGHLIGHTTEXT));
        EXPECT_EQ(frame, 2 * all.right + 2 * all.bottom - 4);
        EXPECT_GT(text, 0);
        EXPECT_GT(ground, text);
        for (int index = 0; index < 30; index++) {
            if (index != COLOR_WINDOWFRAME && index != COLOR_HIGHLIGHT && index != COLOR_HIGHLIGHTTEXT) {
                EXPECT_EQ(pixels.Count(all, Distinct(index)), 0) << "system colour " << index;
            }
        }
        info.Hide();
        for (HBRUSH each : made) {
            DeleteObject(each);
        }
    });
}

TEST_F(InfoWindowColoursTest, AFailedWindowIsFatal)
{
    const auto construct = [] {
        InApp([](TestApp&) {
            const SPY(CreateWindowExW)
                create([](DWORD, const wchar_t*, const wchar_t*, DWORD, int, int, int, int, HWND, HMENU,
                          HINSTANCE, void*) { return HWND{nullptr}; });
            CVireoInfowin().Construct();
        });
    };
    EXPECT_FATAL(construct(), L"CVireoInfowin::Construct", L"Error");
}
