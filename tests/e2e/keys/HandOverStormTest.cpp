// A hundred presses in a row, by messages and by second instances, in every state of the program. Each is
// counted: it asks another program's window, which stays, to close.
#include "tests/e2e/HandOver.h"
#include "tests/e2e/keys/ButtonSession.h"
#include "tests/support/ProcessObjects.h"

#include <functional>

using namespace rig;

static constexpr int releasedButton = 0xC6;
static constexpr int closeAll = 8;

class HandOverStormTest : public ButtonSession
{
  protected:
    const Actor actor;
    HWND counted = nullptr;
    int handed = 0;

    void SetUp() override
    {
        counted = actor.Make({.title = L"Counted", .closing = actor::Closing::Ignore});
        ASSERT_TRUE(counted);
        ButtonSession::SetUp();
        // There closing takes no time.
        ShowPage(LauncherPage, ShowStartCommand);
    }

    void Press(int button = releasedButton)
    {
        EXPECT_EQ(HandOver(main, buttonRecord, ButtonRecord(button, closeAll, closeAll)), TRUE);
        handed++;
    }
    void PressByInstance()
    {
        Button(L"198 8*8");
        handed++;
    }
    // Every twentieth by an instance.
    void PressMany(int count)
    {
        for (int i = 1; i <= count; i++) {
            if (i % 20 == 0) {
                PressByInstance();
            } else {
                Press();
            }
        }
    }

    using Step = std::function<void()>;

    // Presses in a state that one step leads to and another one leaves.
    void Round(const Step& enter, int presses, const Step& leave)
    {
        ASSERT_NO_FATAL_FAILURE(enter());
        PressMany(presses);
        EXPECT_TRUE(WaitFor([&] { return CloseCount(counted) >= handed; }))
            << CloseCount(counted) << " of " << handed << " were performed";
        ASSERT_NO_FATAL_FAILURE(leave());
        EXPECT_EQ(CloseCount(counted), handed);
        // There is one after every press; a tap takes it away.
        ASSERT_TRUE(WaitFor([&] {
            Send(program->Notice(), WM_LBUTTONDOWN);
            return !program->Notice();
        }));
    }

    // None is lost, and nothing is left behind that each would leave. What is made once is made in a round
    // before.
    void ExpectSurvives(const Step& enter, const Step& leave)
    {
        ASSERT_NO_FATAL_FAILURE(Round(enter, 10, leave));
        const ProcessObjects before = ProcessObjects::Of(program->Process());
        ASSERT_GT(before.gdiObjects, 0);
        ASSERT_NO_FATAL_FAILURE(Round(enter, 100, leave));
        ExpectPage(LauncherPage);
        EXPECT_TRUE(WaitFor([&] { return ProcessObjects::Of(program->Process()).windows == before.windows; }))
            << ProcessObjects::Of(program->Process()).windows << " windows instead of " << before.windows;
        EXPECT_LT(ProcessObjects::Of(program->Process()).gdiObjects, before.gdiObjects + 50);
    }
};

static void Nothing() {}

TEST_F(HandOverStormTest, WhileADialogIsOpen)
{
    HWND dialog = nullptr;
    ExpectSurvives(
        [&] {
            dialog = OpenReport();
            ASSERT_TRUE(dialog);
        },
        [&] {
            ASSERT_TRUE(IsWindow(dialog) && InFront(dialog));
            PressKey(VK_RETURN);
            ASSERT_TRUE(WaitFor([&] { return !IsWindow(dialog); }));
        });
}

TEST_F(HandOverStormTest, WhileABoxIsOpen)
{
    HWND box = nullptr;
    ExpectSurvives(
        [&] {
            program->Command(AboutCommand);
            box = program->WaitForDialog();
            ASSERT_TRUE(box);
        },
        [&] {
            ASSERT_TRUE(IsWindow(box));
            PostMessageW(box, WM_COMMAND, IDOK, 0);
            ASSERT_TRUE(WaitFor([&] { return !IsWindow(box); }));
        });
}

TEST_F(HandOverStormTest, WhileAMenuIsOpen)
{
    ExpectSurvives([&] { ASSERT_TRUE(PressMenuKey()); },
                   [&] {
                       ASSERT_TRUE(WaitFor([] {
                           if (OpenMenu()) {
                               PressKey(VK_ESCAPE);
                           }
                           return !OpenMenu();
                       }));
                   });
}

TEST_F(HandOverStormTest, WhileANoticeIsShown)
{
    ExpectSurvives(
        [&] {
            program->Command(SettingsCommand);
            ASSERT_TRUE(WaitFor([&] { return program->Notice(); }));
        },
        Nothing);
}

TEST_F(HandOverStormTest, WhileItIsHidden)
{
    ExpectSurvives(
        [&] {
            program->Command(HideCommand);
            ASSERT_TRUE(WaitFor([&] { return !BarOf(main); }));
        },
        [&] {
            EXPECT_FALSE(BarOf(main)) << "it has come forward";
            ASSERT_TRUE(ComeToFront());
        });
}

TEST_F(HandOverStormTest, WhileItWaitsForAProgramToClose)
{
    const Actor another;
    HWND slow = nullptr;
    ExpectSurvives(
        [&] {
            slow = another.Make({.title = L"Slow", .closing = actor::Closing::Delay, .delay = 1500});
            ASSERT_TRUE(slow);
            Press();
            ASSERT_TRUE(WaitFor([&] { return !Answers(slow, std::chrono::milliseconds(100)); }));
        },
        [&] {
            ASSERT_TRUE(WaitFor([&] { return !IsWindow(slow); }));
            ASSERT_TRUE(ComeToFront());
        });
}

// The held button's own action comes when its time is over.
TEST_F(HandOverStormTest, WhileAButtonIsHeld)
{
    ExpectSurvives(
        [&] {
            KeyDown(buttonKey);
            Press(buttonKey);
        },
        [] { KeyUp(buttonKey); });
}
