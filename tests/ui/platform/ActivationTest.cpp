// SHHandleWMActivate: the focus over the time a window is inactive.
#include "tests/ui/UiTest.h"

class ActivationTest : public UiTest
{
  protected:
    HWND window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 10, 60, 100, 80, nullptr, nullptr,
                                  nullptr, nullptr);
    HWND control = Control(0);
    HWND other = Control(40);
    SHACTIVATEINFO info = {};

    ActivationTest() { info.cbSize = sizeof info; }
    ~ActivationTest() override { DestroyWindow(window); }

    // The window is told that it is not active any more, while the control has the focus.
    void Deactivate()
    {
        SetFocus(control);
        ASSERT_EQ(GetFocus(), control);
        EXPECT_TRUE(SHHandleWMActivate(window, WA_INACTIVE, 0, &info, 0));
        EXPECT_FALSE(info.fActive);
    }

    void Activate()
    {
        EXPECT_TRUE(SHHandleWMActivate(window, WA_ACTIVE, 0, &info, 0));
        EXPECT_TRUE(info.fActive);
    }

  private:
    HWND Control(int x) const
    {
        return CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, x, 0, 40, 20, window, nullptr, nullptr,
                               nullptr);
    }
};

TEST_F(ActivationTest, TheControlThatHadTheFocusGetsItAgain)
{
    Deactivate();
    SetFocus(other);
    Activate();
    EXPECT_EQ(GetFocus(), control);
}

TEST_F(ActivationTest, AControlThatWasDisabledMeanwhileDoesNotGetIt)
{
    Deactivate();
    SetFocus(nullptr);
    EnableWindow(control, FALSE);
    Activate();
    EXPECT_EQ(GetFocus(), window);
}

TEST_F(ActivationTest, NorAHiddenOneNorOneThatHasGone)
{
    Deactivate();
    ShowWindow(control, SW_HIDE);
    SetFocus(nullptr);
    Activate();
    EXPECT_EQ(GetFocus(), window);
    ShowWindow(control, SW_SHOW);
    Deactivate();
    DestroyWindow(control);
    SetFocus(nullptr);
    Activate();
    EXPECT_EQ(GetFocus(), window);
}

TEST_F(ActivationTest, ADisabledWindowTakesNoFocus)
{
    Deactivate();
    SetFocus(nullptr);
    EnableWindow(window, FALSE);
    Activate();
    EXPECT_EQ(GetFocus(), nullptr);
}
