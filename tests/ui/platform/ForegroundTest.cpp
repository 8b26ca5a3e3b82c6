// Windows that come to the front and go to the background, also those of a thread that does not answer.
#include "tests/ui/UiTest.h"

#include <thread>

class ForegroundTest : public UiTest
{
  protected:
    static HWND MakeWindow()
    {
        return CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 10, 60, 100, 80, nullptr, nullptr,
                               nullptr, nullptr);
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
