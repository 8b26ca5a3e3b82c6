// SHRecognizeGesture on a Smartphone, which has no stylus.
// profiles: smartphone
#include "tests/ui/UiTest.h"
#include "tests/ui/platform/Stylus.h"

class NoStylusTest : public UiTest
{};

TEST_F(NoStylusTest, NothingIsAGesture)
{
    const HWND window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 26, 240, 268, nullptr,
                                        nullptr, nullptr, nullptr);
    const Stylus stylus;
    SHRGINFO info = {};
    info.cbSize = sizeof info;
    info.hwndClient = window;
    info.ptDown = {60, 30};
    info.dwFlags = SHRG_RETURNCMD;
    POINT screen = info.ptDown;
    ClientToScreen(window, &screen);
    Stylus::Press(screen);
    EXPECT_EQ(SHRecognizeGesture(&info), 0u);
    EXPECT_EQ(Stylus::Waited(), 0u);
    DestroyWindow(window);
}
