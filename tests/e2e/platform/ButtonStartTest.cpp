// A first start by a hardware button, with another program in front.
#include "rig/Actor.h"
#include "tests/e2e/HandheldKeys.h"
#include "tests/e2e/ShellSession.h"

#include <algorithm>

using namespace rig;

class ButtonStartTest : public ShellSession
{
  protected:
    static constexpr int rounds = 6;

    void SetUp() override {}

    static bool IsBefore(HWND one, HWND other)
    {
        const std::vector<HWND> windows = TopWindows();
        return std::find(windows.begin(), windows.end(), one) <
               std::find(windows.begin(), windows.end(), other);
    }
};

TEST_F(ButtonStartTest, TheProgramInFrontKeepsItsPlaceAndTheKeys)
{
    const Actor actor;
    const HWND front = actor.Make({.title = L"In front"});
    ASSERT_TRUE(front);
    for (int round = 0; round < rounds; round++) {
        ASSERT_TRUE(Raise(front));
        Launch(L"193 1*0");
        ASSERT_TRUE(main);
        ASSERT_TRUE(program->WaitForPage(TasksPage));
        ASSERT_TRUE(WaitFor([&] { return !BarOf(main); }));
        Send(main, WM_NULL); // it has come to its message loop
        EXPECT_TRUE(InFront(front)) << round;
        EXPECT_TRUE(WaitFor([&] { return IsBefore(front, main); }, std::chrono::seconds(3)))
            << "it is before the other program in round " << round;
        const int keys = KeyCount(front);
        PressKey('K');
        EXPECT_TRUE(WaitFor([&] { return KeyCount(front) == keys + 1; }, std::chrono::seconds(3)))
            << "the key did not reach the program in front in round " << round;
        PostMessageW(main, WM_CLOSE, 0, 0);
        ExpectEnd();
    }
}

TEST_F(ButtonStartTest, TheProgramInFrontIsTheOneThatIsClosed)
{
    const Actor actor;
    const HWND other = actor.Make({.title = L"Other", .closing = actor::Closing::Ignore});
    for (int round = 0; round < rounds; round++) {
        const HWND front = actor.Make({.title = L"In front"});
        ASSERT_TRUE(Raise(front));
        Launch(L"193 7*0");
        ASSERT_TRUE(main);
        EXPECT_TRUE(WaitFor([=] { return !IsWindow(front); })) << round;
        EXPECT_EQ(CloseCount(other), 0) << round;
        PostMessageW(main, WM_CLOSE, 0, 0);
        ExpectEnd();
    }
}

TEST_F(ButtonStartTest, TheProgramInFrontIsTheOneThatIsSpared)
{
    const Actor actor;
    const HWND front = actor.Make({.title = L"In front"});
    for (int round = 0; round < rounds; round++) {
        const HWND other = actor.Make({.title = L"Other"});
        ASSERT_TRUE(Raise(front));
        Launch(L"193 9*0");
        ASSERT_TRUE(main);
        EXPECT_TRUE(WaitFor([=] { return !IsWindow(other); })) << round;
        EXPECT_TRUE(WaitFor([&] { return program->Notice(); })) << round;
        EXPECT_EQ(CloseCount(front), 0) << round;
        ASSERT_TRUE(IsWindow(front)) << round;
        PostMessageW(main, WM_CLOSE, 0, 0);
        ExpectEnd();
    }
}

TEST_F(ButtonStartTest, ARealPressAndARealHoldStartItAndArePerformed)
{
    const ButtonDefault button(firstButton);
    button.Set(OwnCommand(L"193 4*5"));
    const Actor actor;
    const HWND front = actor.Make({.title = L"In front"});
    for (const bool holds : {false, true}) {
        ASSERT_TRUE(Raise(front));
        KeyDown(VK_F5);
        if (!holds) {
            KeyUp(VK_F5);
        }
        main = WaitForTopWindow({.className = L"QuorvaneApp"});
        program.emplace(Program::Running());
        EXPECT_TRUE(main && program->WaitForPage(holds ? SysInfoPage : ProcsPage)) << holds;
        EXPECT_TRUE(InFront(main)) << holds;
        KeyUp(VK_F5);
        PostMessageW(main, WM_CLOSE, 0, 0);
        EXPECT_TRUE(WaitFor([this] { return !program->IsRunning(); })) << holds;
        program.reset();
    }
}
