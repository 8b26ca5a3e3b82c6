// SHRecognizeGesture: a stylus that is held is told from one that is lifted or moved.
#include "tests/support/OwnProfile.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/platform/Stylus.h"

class GestureTest : public UiTest
{
  protected:
    static constexpr POINT place = {60, 30}; // in the client area

    static void SetUpTestSuite() { UseOwnProfile("[handheld]\nhold-ms = 700\n"); }

    void SetUp() override
    {
        if (!IsOnlySuite()) {
            GTEST_SKIP() << "another suite may have read the profile already; run this one alone";
        }
        ASSERT_TRUE(IsWindow(child));
        Stylus::Press(OnScreen(place));
    }

    GestureTest() { noted = {}; }
    ~GestureTest() override { DestroyWindow(parent); }

    POINT OnScreen(POINT point) const
    {
        ClientToScreen(child, &point);
        return point;
    }

    DWORD Recognize(DWORD flags) const
    {
        SHRGINFO info = {};
        info.cbSize = sizeof info;
        info.hwndClient = child;
        info.ptDown = place;
        info.dwFlags = flags;
        return SHRecognizeGesture(&info);
    }

    static LRESULT CALLBACK ParentProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_NOTIFY) {
            noted = *reinterpret_cast<const NMHDR*>(lParam);
            return 77;
        }
        return DefWindowProcW(window, message, wParam, lParam);
    }

    static HWND Parent()
    {
        WNDCLASSW windowClass = {};
        windowClass.lpfnWndProc = ParentProcedure;
        windowClass.hInstance = GetModuleHandleW(nullptr);
        windowClass.lpszClassName = L"GestureParent";
        RegisterClassW(&windowClass);
        return CreateWindowExW(0, windowClass.lpszClassName, L"", WS_POPUP | WS_VISIBLE, 0, 26, 240, 268,
                               nullptr, nullptr, nullptr, nullptr);
    }

    static NMHDR noted;
    HWND parent = Parent();
    HWND child = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 10, 10, 200, 200, parent,
                                 reinterpret_cast<HMENU>(5), nullptr, nullptr);
    Stylus stylus;
};

NMHDR GestureTest::noted;

TEST_F(GestureTest, AHeldStylusAsksForTheMenu)
{
    EXPECT_EQ(Recognize(SHRG_RETURNCMD), 1000u);
    EXPECT_EQ(Stylus::Waited(), 700u);
    EXPECT_EQ(noted.code, 0u);
}

TEST_F(GestureTest, ATrembleIsStillHeld)
{
    stylus.Then([this] { Stylus::Move(OnScreen({place.x + 3, place.y - 3})); });
    EXPECT_EQ(Recognize(SHRG_RETURNCMD), 1000u);
}

TEST_F(GestureTest, ALiftedStylusAsksForNothing)
{
    stylus.Then(Stylus::Lift);
    EXPECT_EQ(Recognize(SHRG_RETURNCMD), 0u);
    EXPECT_LT(Stylus::Waited(), 700u);
}

TEST_F(GestureTest, AMovedStylusAsksForNothing)
{
    stylus.Then([this] { Stylus::Move(OnScreen({place.x + 12, place.y})); });
    EXPECT_EQ(Recognize(SHRG_RETURNCMD), 0u);
    EXPECT_LT(Stylus::Waited(), 700u);
}

TEST_F(GestureTest, OneThatIsUpAlreadyIsNotWaitedFor)
{
    Stylus::Lift();
    EXPECT_EQ(Recognize(SHRG_RETURNCMD), 0u);
    EXPECT_EQ(Stylus::Waited(), 0u);
}

TEST_F(GestureTest, MessagesWaitUntilItIsDecided)
{
    PostMessageW(child, WM_APP, 1, 2);
    stylus.Then(Stylus::Lift);
    EXPECT_EQ(Recognize(SHRG_RETURNCMD), 0u);
    MSG message = {};
    EXPECT_TRUE(PeekMessageW(&message, child, WM_APP, WM_APP, PM_REMOVE));
    EXPECT_TRUE(
        PumpUntil([&] { return PeekMessageW(&message, nullptr, WM_LBUTTONUP, WM_LBUTTONUP, PM_NOREMOVE); }));
}

TEST_F(GestureTest, WithoutTheFlagTheParentIsToldAndAnswers)
{
    EXPECT_EQ(Recognize(0), 77u);
    EXPECT_EQ(noted.code, 1000u);
    EXPECT_EQ(noted.hwndFrom, child);
    EXPECT_EQ(noted.idFrom, 5u);
}

TEST_F(GestureTest, ARecordOfAnotherSizeIsRefused)
{
    SHRGINFO info = {};
    info.hwndClient = child;
    EXPECT_EQ(SHRecognizeGesture(&info), 0u);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_INVALID_PARAMETER});
    EXPECT_EQ(SHRecognizeGesture(nullptr), 0u);
}
