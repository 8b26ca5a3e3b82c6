// Windows are made as the device's window manager makes them.
#include "tests/ui/UiTest.h"

class CreateWindowTest : public UiTest
{
  protected:
    HWND parent =
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 10, 60, 100, 80, nullptr, nullptr, nullptr, nullptr);
    ~CreateWindowTest() override { DestroyWindow(parent); }

    static DWORD Kind(HWND window)
    {
        return static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE)) & (WS_CHILD | WS_POPUP);
    }

    static HWND Make(DWORD style, HWND parent, int x, int width)
    {
        return CreateWindowExW(0, L"STATIC", L"", style, x, 70, width, 30, parent, nullptr, nullptr, nullptr);
    }
};

TEST_F(CreateWindowTest, AWindowWithAParentIsItsChildUnlessItIsAPopUp)
{
    const HWND child = Make(0, parent, 5, 20);
    EXPECT_EQ(Kind(child), static_cast<DWORD>(WS_CHILD));
    EXPECT_EQ(GetParent(child), parent);
    const HWND popUp = Make(WS_POPUP, parent, 5, 20);
    EXPECT_EQ(Kind(popUp), WS_POPUP);
    EXPECT_EQ(GetWindow(popUp, GW_OWNER), parent);
}

TEST_F(CreateWindowTest, ByDefaultAWindowFillsTheScreenBelowTheTopBar)
{
    const int unset = static_cast<int>(CW_USEDEFAULT);
    const HDC screen = GetDC(nullptr);
    const int right = GetDeviceCaps(screen, HORZRES);
    const int bottom = GetDeviceCaps(screen, VERTRES);
    const int bar = 26 * GetDeviceCaps(screen, LOGPIXELSY) / 96;
    ReleaseDC(nullptr, screen);
    const HWND window =
        CreateWindowExW(0, L"STATIC", L"", 0, unset, unset, unset, unset, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(WindowRect(window), (RECT{0, bar, right, bottom}));
    EXPECT_EQ(ClientSize(window).cx, right) << "it has no frame";
    EXPECT_EQ(ClientSize(window).cy, bottom - bar);
    DestroyWindow(window);
}
