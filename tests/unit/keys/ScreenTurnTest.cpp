// Turning the screen.
#include "keys/ScreenTurn.h"
#include "tests/support/Spy.h"

#include <gtest/gtest.h>

// A screen that knows its orientation; the calls are compared in the order they came.
class ScreenTurnTest : public testing::Test
{
  protected:
    DWORD orientation = 0;
    LONG answer = 0;
    std::vector<DWORD> set; // the orientations that were set
    SPY(ChangeDisplaySettingsEx) change;

    ScreenTurnTest()
    {
        change.instead = [this](const wchar_t* device, DEVMODEW* mode, HWND window, DWORD flags,
                                void* parameter) {
            EXPECT_EQ(device, nullptr);
            EXPECT_EQ(window, nullptr);
            EXPECT_EQ(parameter, nullptr);
            EXPECT_EQ(mode->dmSize, 192);
            EXPECT_EQ(mode->dmFields, 0x800000u);
            if (flags == 2) {
                if (answer == 0) {
                    mode->dmDisplayOrientation = orientation;
                }
            } else {
                EXPECT_EQ(flags, 0u);
                EXPECT_EQ(change.calls.size() % 2, 0u) << "set before it was asked";
                set.push_back(mode->dmDisplayOrientation);
                orientation = mode->dmDisplayOrientation;
            }
            return answer;
        };
    }
};

TEST_F(ScreenTurnTest, AnUprightScreenIsTurnedBy270Degrees)
{
    TurnScreen();
    EXPECT_EQ(set, std::vector<DWORD>{4});
}

TEST_F(ScreenTurnTest, AnyOtherBecomesUpright)
{
    for (const DWORD turned : {1u, 2u, 4u, 3u, 90u, 0xFFFFFFFFu}) {
        orientation = turned;
        TurnScreen();
        EXPECT_EQ(orientation, 0u) << turned;
    }
}

TEST_F(ScreenTurnTest, TwoTurnsAreNone)
{
    TurnScreen();
    TurnScreen();
    EXPECT_EQ(set, (std::vector<DWORD>{4, 0}));
    EXPECT_EQ(change.calls.size(), 4u);
}

TEST_F(ScreenTurnTest, AScreenThatDoesNotAnswerIsTakenForUpright)
{
    answer = -1;
    TurnScreen();
    EXPECT_EQ(set, std::vector<DWORD>{4});
}
