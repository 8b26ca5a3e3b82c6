// Press against hold, with a key that is really held down.
#include "tests/e2e/keys/ButtonSession.h"

using namespace rig;
using Clock = std::chrono::steady_clock;

class ButtonHoldTest : public ButtonSession
{};

TEST_F(ButtonHoldTest, AHeldButtonPerformsItsHold)
{
    for (const auto& [commandLine, page] : {std::pair{L"193 4*5", SysInfoPage}, {L"193 5*4", ProcsPage}}) {
        const auto before = Clock::now();
        KeyDown(buttonKey);
        Button(commandLine);
        EXPECT_TRUE(program->WaitForPage(page)) << "the hold was not performed";
        EXPECT_GE(Clock::now() - before, std::chrono::milliseconds(550)) << "it did not wait for the release";
        KeyUp(buttonKey);
        ExpectPage(page);
    }
}

TEST_F(ButtonHoldTest, AButtonThatComesUpInTimePerformsItsPress)
{
    // A busy machine may be late with the release, and then it is a hold.
    bool pressed = false;
    for (int tries = 0; !pressed && tries < 10; tries++) {
        Button(L"193 3*3");
        ASSERT_TRUE(program->WaitForPage(TasksPage));
        KeyDown(buttonKey);
        Button(L"193 4*5");
        KeyUp(buttonKey);
        ASSERT_TRUE(WaitFor([&] { return program->VisiblePage() != TasksPage; }));
        pressed = program->VisiblePage() == ProcsPage;
    }
    EXPECT_TRUE(pressed) << "it is always taken for a hold";
}

TEST_F(ButtonHoldTest, AButtonThatIsUpPerformsItsPress)
{
    Button(L"193 4*5");
    ExpectPage(ProcsPage);
    KeyDown(buttonKey); // another button's
    Button(L"198 5*6");
    EXPECT_TRUE(program->WaitForPage(SysInfoPage));
    KeyUp(buttonKey);
}

TEST_F(ButtonHoldTest, AFirstInstancePerformsItsButtonToo)
{
    PostMessageW(main, WM_CLOSE, 0, 0);
    ExpectEnd();
    Launch(L"193 4*5");
    ASSERT_TRUE(main);
    ASSERT_TRUE(InFront(main));
    ExpectPage(ProcsPage);
    PostMessageW(main, WM_CLOSE, 0, 0);
    ExpectEnd();

    KeyDown(buttonKey);
    Launch(L"193 4*5");
    ASSERT_TRUE(main);
    EXPECT_TRUE(program->WaitForPage(SysInfoPage));
    KeyUp(buttonKey);
    ASSERT_TRUE(InFront(main));
    ExpectPage(SysInfoPage);
}

TEST_F(ButtonHoldTest, ASecondPressWhileTheFirstIsWatchedIsPerformed)
{
    KeyDown(buttonKey);
    Button(L"193 4*5");
    Button(L"198 6*6"); // comes up at once
    EXPECT_TRUE(program->WaitForPage(LauncherPage));
    KeyUp(buttonKey);
    ExpectPage(LauncherPage);
}
