// CVireoDialog: where dialogs and their controls lie.
// profiles: pocketpc pocketpc-vga
#include "framework/Gdi.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/framework/TestDialog.h"

class CVireoDialogPlaceTest : public UiTest
{
  protected:
    // Runs a test inside the loop of a captioned dialog that is not full-screen.
    static void InLowDialog(const std::function<void(TestApp&, TestDialog&)>& test)
    {
        InApp([&](TestApp& app) {
            TestDialog dialog("dialog");
            dialog.body = [&] {
                test(app, dialog);
                dialog.End(0);
            };
            dialog.StartDialogNoTemplate(0, 0, false);
        });
    }

    static int Height(const RECT& rect) { return rect.bottom - rect.top; }

    static void ExpectAtBottom(const RECT& dialog, const RECT& main, int bottom, int height)
    {
        EXPECT_EQ(dialog, (RECT{main.left, bottom - height, main.right, bottom}));
    }
};

TEST_F(CVireoDialogPlaceTest, AFullScreenDialogCoversTheWholeMainWindow)
{
    InApp([](TestApp& app) {
        MoveWindow(app.MainWindow(), 3, 40, 200, 150, FALSE);
        TestDialog dialog("dialog");
        dialog.onInit = [&] {
            EXPECT_EQ(WindowRect(dialog.window), (RECT{3, 40, 203, 190}));
            dialog.End(0);
        };
        dialog.Start();
    });
}

TEST_F(CVireoDialogPlaceTest, AnyOtherDialogKeepsItsHeightAtTheBottom)
{
    InApp([](TestApp& app) {
        MoveWindow(app.MainWindow(), 3, 40, 200, 150, FALSE);
        int height = 0;
        TestDialog dialog("dialog");
        dialog.onCreateMenuBar = [&](SHMENUBARINFO&) { height = Height(WindowRect(dialog.window)); };
        dialog.onInit = [&] {
            ExpectAtBottom(WindowRect(dialog.window), {3, 40, 203, 190}, 190, height);
            dialog.End(0);
        };
        dialog.StartDialogNoTemplate(0, 0, false);
        EXPECT_GT(height, 0);
    });
}

TEST_F(CVireoDialogPlaceTest, ATurnedScreenPutsItBackToTheBottom)
{
    InLowDialog([](TestApp& app, TestDialog& dialog) {
        MoveWindow(dialog.window, 20, 50, 100, 60, FALSE);
        const SPY(SHHandleWMSettingChange) shell;
        dialog.Ask(WM_SETTINGCHANGE, 0x3002, 0);
        const RECT main = WindowRect(app.MainWindow());
        ExpectAtBottom(WindowRect(dialog.window), main, main.bottom, 60);
        EXPECT_TRUE(shell.calls.empty());
    });
}

TEST_F(CVireoDialogPlaceTest, ATurnedScreenLeavesAFullScreenDialogToTheShell)
{
    InApp([](TestApp&) {
        TestDialog dialog("dialog");
        dialog.body = [&] {
            MoveWindow(dialog.window, 20, 50, 100, 60, FALSE);
            dialog.Ask(WM_SETTINGCHANGE, 0x3002, 0);
            EXPECT_EQ(WindowRect(dialog.window), (RECT{20, 50, 120, 110}));
            dialog.End(0);
        };
        dialog.Start();
    });
}

TEST_F(CVireoDialogPlaceTest, AfterTheInputPanelItKeepsTheBottomThatTheShellGaveIt)
{
    InLowDialog([](TestApp& app, TestDialog& dialog) {
        const RECT before = WindowRect(dialog.window);
        const SPY(SHHandleWMSettingChange)
            shell([&](HWND window, WPARAM wParam, LPARAM lParam, SHACTIVATEINFO* info) {
                EXPECT_EQ(window, dialog.window);
                EXPECT_EQ(wParam, 224U);
                EXPECT_EQ(lParam, 5);
                EXPECT_EQ(info, &app.activateInfo);
                MoveWindow(window, before.left + 10, before.top - 30, 90, Height(before), FALSE);
                return TRUE;
            });
        dialog.Ask(WM_SETTINGCHANGE, 224, 5);
        EXPECT_EQ(shell.calls.size(), 1U);
        ExpectAtBottom(WindowRect(dialog.window), WindowRect(app.MainWindow()), before.bottom - 30,
                       Height(before));
    });
}

TEST_F(CVireoDialogPlaceTest, AfterTheInputPanelAFullScreenDialogIsDrawnAgain)
{
    InApp([](TestApp&) {
        TestDialog dialog("dialog");
        dialog.body = [&] {
            UpdateWindow(dialog.window);
            const RECT before = WindowRect(dialog.window);
            int paints = 0;
            dialog.onPaint = [&](HDC target) {
                RECT clip = {};
                GetClipBox(target, &clip);
                const SIZE client = ClientSize(dialog.window);
                EXPECT_EQ(clip, (RECT{0, 0, client.cx, client.cy}));
                paints++;
            };
            dialog.Ask(WM_SETTINGCHANGE, 224, 0);
            EXPECT_EQ(paints, 1);
            EXPECT_EQ(WindowRect(dialog.window), before);
            dialog.onPaint = nullptr;
            dialog.End(0);
        };
        dialog.Start();
    });
}

TEST_F(CVireoDialogPlaceTest, OtherSettingsChangeNothing)
{
    InLowDialog([](TestApp&, TestDialog& dialog) {
        MoveWindow(dialog.window, 20, 50, 100, 60, FALSE);
        const SPY(SHHandleWMSettingChange) shell;
        dialog.Ask(WM_SETTINGCHANGE, 1, 0);
        EXPECT_TRUE(shell.calls.empty());
        EXPECT_EQ(WindowRect(dialog.window), (RECT{20, 50, 120, 110}));
    });
}

TEST_F(CVireoDialogPlaceTest, StretchedControlsKeepTheirTopsAndHeights)
{
    const ScreenDC screen;
    const int margin = (GetDeviceCaps(screen, LOGPIXELSX) * 7 + 48) / 96;
    EXPECT_GE(margin, 7);
    HWND page = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_BORDER, 5, 60, 180, 120, nullptr, nullptr,
                                GetModuleHandleW(nullptr), nullptr);
    HWND controls[3] = {};
    for (int i = 0; i < 3; i++) {
        controls[i] = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 30 + i, 10 + 20 * i, 40,
                                      12 + i, page, reinterpret_cast<HMENU>(static_cast<INT_PTR>(200 + i)),
                                      GetModuleHandleW(nullptr), nullptr);
    }
    const SPY(MoveWindow) move;
    const int ids[] = {200, 202};
    CVireoDialog::StretchControls(page, ids, 2);
    const int width = ClientSize(page).cx - 2 * margin;
    ASSERT_EQ(move.calls.size(), 2U);
    EXPECT_EQ(move.calls[0], std::make_tuple(controls[0], margin, 10, width, 12, TRUE));
    EXPECT_EQ(move.calls[1], std::make_tuple(controls[2], margin, 50, width, 14, TRUE));
    EXPECT_EQ(CVireoDialog::Margin(), margin);
    DestroyWindow(page);
}

TEST_F(CVireoDialogPlaceTest, TheMarginIsComputedOnce)
{
    CVireoDialog::Margin();
    const SPY(GetDeviceCaps) caps;
    CVireoDialog::Margin();
    EXPECT_TRUE(caps.calls.empty());
}
