// Windows that come to the front and go to the background, also those of a thread that does not answer.
#include "tests/ui/UiTest.h"

#include <algorithm>
#include <thread>

class ForegroundTest : public UiTest
{
  protected:
    static HWND MakeWindow(HWND owner = nullptr, DWORD exStyle = 0)
    {
        return CreateWindowExW(exStyle, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 10, 60, 100, 80, owner,
                               nullptr, nullptr, nullptr);
    }

    // One of several windows that is in front of the others.
    static HWND FrontOf(const std::vector<HWND>& windows)
    {
        HWND front = GetTopWindow(GetDesktopWindow());
        while (front != nullptr && std::find(windows.begin(), windows.end(), front) == windows.end()) {
            front = GetWindow(front, GW_HWNDNEXT);
        }
        return front;
    }
};

// A window whose thread does nothing until it is let go, or until it has waited for too long.
class SilentWindow
{
    static constexpr DWORD longest = 10000; // ms

    HANDLE made = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HANDLE letGo = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::thread thread;
    bool waitedTooLong = false;

  public:
    HWND window = nullptr;

    SilentWindow()
    {
        thread = std::thread([this] {
            window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 10, 60, 100, 80, nullptr,
                                     nullptr, nullptr, nullptr);
            SetEvent(made);
            waitedTooLong = WaitForSingleObject(letGo, longest) != WAIT_OBJECT_0;
            DestroyWindow(window);
        });
        WaitForSingleObject(made, INFINITE);
    }
    ~SilentWindow()
    {
        CloseHandle(made);
        CloseHandle(letGo);
    }
    SilentWindow(const SilentWindow&) = delete;
    SilentWindow& operator=(const SilentWindow&) = delete;

    // Whether nobody has waited for the thread so far.
    bool LetGo()
    {
        SetEvent(letGo);
        thread.join();
        return !waitedTooLong;
    }
};

TEST_F(ForegroundTest, AMinimisedWindowIsRestored)
{
    const HWND window = MakeWindow();
    const RECT place = WindowRect(window);
    CloseWindow(window); // minimises it as the PC does
    ASSERT_TRUE(IsIconic(window));
    SetForegroundWindow(window);
    EXPECT_TRUE(PumpUntil([=] { return !IsIconic(window); }));
    EXPECT_EQ(WindowRect(window), place);
    DestroyWindow(window);
}

TEST_F(ForegroundTest, NothingWaitsForAnotherThreadsWindow)
{
    for (const int command : {SW_HIDE, SW_SHOWNORMAL, SW_MINIMIZE}) {
        SilentWindow silent;
        ShowWindow(silent.window, command);
        EXPECT_TRUE(silent.LetGo()) << command;
    }
    SilentWindow silent;
    SetForegroundWindow(silent.window);
    EXPECT_TRUE(silent.LetGo());
}

TEST_F(ForegroundTest, MinimisingDoesNotWaitForTheWindowsBehind)
{
    SilentWindow silent;
    const HWND window = MakeWindow();
    ShowWindow(window, SW_MINIMIZE);
    EXPECT_TRUE(silent.LetGo());
    EXPECT_TRUE(IsWindowVisible(window));
    EXPECT_FALSE(IsIconic(window));
    DestroyWindow(window);
}

TEST_F(ForegroundTest, PopUpsComeWithTheirOwnerInTheOrderTheyHad)
{
    const HWND window = MakeWindow();
    const HWND below = MakeWindow(window);
    const HWND above = MakeWindow(window);
    const HWND other = MakeWindow();
    ASSERT_EQ(FrontOf({window, below, above, other}), other);
    SetForegroundWindow(window);
    EXPECT_TRUE(PumpUntil([&] { return FrontOf({below, above, other}) != other; }));
    EXPECT_EQ(FrontOf({window, below, above, other}), above);
    EXPECT_EQ(FrontOf({window, below, other}), below);
    EXPECT_EQ(FrontOf({window, other}), window);
    DestroyWindow(other);
    DestroyWindow(window);
}

TEST_F(ForegroundTest, ADisabledWindowHandsTheForegroundToTheOneItWaitsFor)
{
    const HWND window = MakeWindow();
    const HWND box = MakeWindow(window);
    const HWND bar = MakeWindow(window, WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW);
    const HWND other = MakeWindow();
    EnableWindow(window, FALSE);
    SetForegroundWindow(other);
    ASSERT_EQ(GetForegroundWindow(), other);
    SetForegroundWindow(window);
    EXPECT_TRUE(PumpUntil([&] { return GetForegroundWindow() != other; }));
    EXPECT_EQ(GetForegroundWindow(), box);
    DestroyWindow(bar);
    DestroyWindow(other);
    DestroyWindow(window);
}

TEST_F(ForegroundTest, ShowingACoveredWindowBringsItToTheFront)
{
    const HWND window = MakeWindow();
    const HWND other = MakeWindow();
    SetForegroundWindow(other);
    ASSERT_EQ(FrontOf({window, other}), other);
    ShowWindow(window, SW_SHOWNA);
    EXPECT_EQ(GetForegroundWindow(), other) << "it was shown without being activated";
    EXPECT_TRUE(ShowWindow(window, SW_SHOW));
    EXPECT_TRUE(PumpUntil([&] { return GetForegroundWindow() == window; }));
    EXPECT_EQ(FrontOf({window, other}), window);
    DestroyWindow(other);
    DestroyWindow(window);
}

TEST_F(ForegroundTest, MinimisingActivatesTheNextWindowThatCanBeActive)
{
    const HWND next = MakeWindow();
    const HWND tool = MakeWindow(nullptr, WS_EX_TOOLWINDOW);
    const HWND disabled = MakeWindow();
    EnableWindow(disabled, FALSE);
    const HWND window = MakeWindow();
    SetForegroundWindow(window);
    ASSERT_EQ(GetForegroundWindow(), window);
    ShowWindow(window, SW_MINIMIZE);
    EXPECT_TRUE(PumpUntil([&] { return GetForegroundWindow() != window; }));
    EXPECT_EQ(GetForegroundWindow(), next);
    EXPECT_NE(FrontOf({window, next, tool, disabled}), window);
    for (const HWND each : {next, tool, disabled, window}) {
        DestroyWindow(each);
    }
}

// The device's sign for "with its pop-ups", which come always.
TEST_F(ForegroundTest, TheLowestBitOfTheHandleDoesNotMatter)
{
    const HWND window = MakeWindow();
    const HWND other = MakeWindow();
    SetForegroundWindow(other);
    ASSERT_EQ(GetForegroundWindow(), other);
    EXPECT_TRUE(SetForegroundWindow(reinterpret_cast<HWND>(reinterpret_cast<UINT_PTR>(window) | 1)));
    EXPECT_TRUE(PumpUntil([&] { return GetForegroundWindow() == window; }));
    EXPECT_EQ(FrontOf({window, other}), window);
    DestroyWindow(other);
    DestroyWindow(window);
}

// As a notice is that tells of a dialog which is shown only then.
TEST_F(ForegroundTest, WhatIsToBeAboveEverythingStaysAboveAWindowThatIsShownLater)
{
    const HWND notice = MakeWindow();
    const HWND plain = MakeWindow();
    SetWindowPos(notice, HWND_TOPMOST, 10, 60, 50, 50, SWP_SHOWWINDOW | SWP_NOACTIVATE);
    EXPECT_EQ(GetWindowLongPtrW(notice, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
    const HWND later =
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 10, 60, 100, 80, nullptr, nullptr, nullptr, nullptr);
    ShowWindow(later, SW_SHOW);
    EXPECT_EQ(FrontOf({notice, plain, later}), notice);
    EXPECT_EQ(FrontOf({plain, later}), later);
    for (HWND window : {notice, plain, later}) {
        DestroyWindow(window);
    }
}
