// What the stylus does on a soft-key bar.
#include "platform/pc/common/SoftKeys.h"
#include "tests/ui/Pixels.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/platform/bars.h"

class BarTapTest : public UiTest
{
  protected:
    static constexpr const wchar_t* ownerClass = L"BarTapOwner";
    HWND owner = nullptr;
    HWND bar = nullptr;

    BarTapTest()
    {
        WNDCLASSW windowClass = {};
        windowClass.lpfnWndProc = OwnerProcedure;
        windowClass.hInstance = GetModuleHandleW(nullptr);
        windowClass.lpszClassName = ownerClass;
        RegisterClassW(&windowClass);
        owner = CreateWindowExW(0, ownerClass, L"", WS_POPUP | WS_VISIBLE, 0, 26, 240, 268, nullptr, nullptr,
                                nullptr, nullptr);
        SHMENUBARINFO info = {};
        info.cbSize = sizeof info;
        info.hwndParent = owner;
        info.nToolBarId = IDB_OWN_WORDS;
        info.hInstRes = GetModuleHandleW(nullptr);
        EXPECT_TRUE(SHCreateMenuBar(&info));
        bar = info.hwndMB;
        UpdateWindow(bar);
    }
    ~BarTapTest() override { DestroyWindow(owner); }

    // In the middle of the left key (0) or the right one (1).
    void Touch(UINT message, int key, WPARAM buttons = MK_LBUTTON) const
    {
        const SIZE size = ClientSize(bar);
        SendMessageW(bar, message, buttons, MAKELPARAM((1 + 2 * key) * size.cx / 4, size.cy / 2));
    }

    // What has come of it: a posted command arrives before a message that is posted now.
    Events Answers() const
    {
        PostMessageW(owner, messageEnd, 0, 0);
        EXPECT_TRUE(PumpUntil([&] { return ended; }));
        ended = false;
        return TakeEvents();
    }

    // Whether the bar looks like that; it paints a key's state at once.
    bool Shows(const Pixels& picture) const
    {
        const Pixels now = Pixels::Of(bar);
        for (int y = 0; y < now.All().bottom; y++) {
            for (int x = 0; x < now.All().right; x++) {
                if (now.At(x, y) != picture.At(x, y)) {
                    return false;
                }
            }
        }
        return true;
    }

  private:
    static constexpr UINT messageEnd = WM_APP + 17;
    inline static bool ended = false;

    static LRESULT CALLBACK OwnerProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_COMMAND) {
            Note("command " + std::to_string(wParam));
        }
        ended = ended || message == messageEnd;
        return DefWindowProcW(window, message, wParam, lParam);
    }
};

TEST_F(BarTapTest, ATapSendsTheKeysCommand)
{
    Touch(WM_LBUTTONDOWN, 1);
    EXPECT_EQ(Answers(), Events{});
    Touch(WM_LBUTTONUP, 1, 0);
    EXPECT_EQ(Answers(), Events{"command 2"});
    Touch(WM_LBUTTONDOWN, 0);
    Touch(WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(Answers(), Events{"command 1"});
}

TEST_F(BarTapTest, AStylusThatIsLiftedElsewherePressesNothing)
{
    Touch(WM_LBUTTONDOWN, 0);
    Touch(WM_LBUTTONUP, 1, 0);
    EXPECT_EQ(Answers(), Events{});
}

TEST_F(BarTapTest, AStylusThatWasLiftedUnseenPressesNothing)
{
    const Pixels before = Pixels::Of(bar);
    Touch(WM_LBUTTONDOWN, 0);
    EXPECT_FALSE(Shows(before));
    Touch(WM_MOUSEMOVE, 0);
    EXPECT_EQ(GetCapture(), bar);
    Touch(WM_MOUSEMOVE, 0, 0);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_TRUE(Shows(before));
    Touch(WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(Answers(), Events{});
}

TEST_F(BarTapTest, AKeyWhoseStylusAnotherWindowTookIsNotPressedAnyMore)
{
    const Pixels before = Pixels::Of(bar);
    Touch(WM_LBUTTONDOWN, 1);
    SetCapture(owner);
    EXPECT_TRUE(Shows(before));
    ReleaseCapture();
}

TEST_F(BarTapTest, TheKeysOfADisabledOwnerAreDead)
{
    EnableWindow(owner, FALSE);
    SendMessageW(bar, handheld::WM_PRESS_SOFT_KEY, 0, 0);
    Touch(WM_LBUTTONDOWN, 0);
    EXPECT_EQ(GetCapture(), nullptr);
    Touch(WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(Answers(), Events{});
    EnableWindow(owner, TRUE);
    SendMessageW(bar, handheld::WM_PRESS_SOFT_KEY, 0, 0);
    EXPECT_EQ(Answers(), Events{"command 1"});
}
