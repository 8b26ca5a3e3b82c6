// SHInitDialog: a dialog that covers the screen between the bars.
#include "tests/ui/UiTest.h"

class InitDialogTest : public UiTest
{
  protected:
    static constexpr RECT made = {20, 50, 120, 150};
    HWND dialog = CreateWindowExW(WS_EX_DLGMODALFRAME, L"STATIC", L"", WS_POPUP | WS_CAPTION | WS_SYSMENU,
                                  made.left, made.top, made.right - made.left, made.bottom - made.top,
                                  nullptr, nullptr, nullptr, nullptr);
    ~InitDialogTest() override { DestroyWindow(dialog); }

    BOOL Init(DWORD mask, DWORD flags) const
    {
        SHINITDLGINFO info = {};
        info.dwMask = mask;
        info.hDlg = dialog;
        info.dwFlags = flags;
        return SHInitDialog(&info);
    }
};

TEST_F(InitDialogTest, FullScreenIsBetweenTheTopBarAndTheSoftKeys)
{
    const HDC screen = GetDC(nullptr);
    const int right = GetDeviceCaps(screen, HORZRES);
    const int bottom = GetDeviceCaps(screen, VERTRES);
    const int bar = 26 * GetDeviceCaps(screen, LOGPIXELSY) / 96;
    ReleaseDC(nullptr, screen);
    EXPECT_TRUE(Init(SHIDIM_FLAGS, SHIDIF_SIZEDLGFULLSCREEN));
    EXPECT_EQ(WindowRect(dialog), (RECT{0, bar, right, bottom - bar}));
    EXPECT_EQ(ClientSize(dialog).cx, right) << "without a frame";
    EXPECT_EQ(ClientSize(dialog).cy, bottom - 2 * bar) << "and without a caption";
}

TEST_F(InitDialogTest, AnyOtherDialogStaysAsItIs)
{
    EXPECT_TRUE(Init(SHIDIM_FLAGS, SHIDIF_SIPDOWN));
    EXPECT_EQ(WindowRect(dialog), made);
    EXPECT_FALSE(Init(0, SHIDIF_SIZEDLGFULLSCREEN)) << "the flags do not count";
    EXPECT_EQ(WindowRect(dialog), made);
    EXPECT_FALSE(SHInitDialog(nullptr));
}
