// Ending a process that did not close when asked.
#include "tests/unit/pages/procs/EndingTest.h"

class EndByForceTest : public EndingTest
{
  protected:
    static constexpr DWORD running = 259;
};

TEST_F(EndByForceTest, ItIsToldAndAskedAbout)
{
    answers = {IDYES, IDOK, IDNO};
    exitCodes = {running};
    EXPECT_TRUE(End());
    EXPECT_EQ(calls, Joined(UntilExitCode(), {hangs, warning}));
}

TEST_F(EndByForceTest, AnyAnswerButYesLeavesItAndItsHandle)
{
    for (const int answer : {IDNO, IDCANCEL, IDOK, 0}) {
        answers = {IDYES, IDOK, answer};
        exitCodes = {running};
        EXPECT_TRUE(End()) << answer;
        EXPECT_EQ(calls, Joined(UntilExitCode(), {hangs, warning})) << answer;
    }
}

TEST_F(EndByForceTest, WhateverTheFirstBoxAnswersTheSecondAsks)
{
    for (const int answer : {IDOK, IDCANCEL, IDNO, 0}) {
        answers = {IDYES, answer, IDNO};
        exitCodes = {running};
        EXPECT_TRUE(End()) << answer;
        EXPECT_EQ(calls, Joined(UntilExitCode(), {hangs, warning})) << answer;
    }
}

TEST_F(EndByForceTest, YesTerminatesItAndClosesItsHandle)
{
    for (const DWORD code : {0u, 1u, 258u}) {
        answers = {IDYES, IDOK, IDYES};
        exitCodes = {running, code};
        EXPECT_TRUE(End());
        EXPECT_EQ(calls, Joined(UntilExitCode(), {hangs, warning, L"terminate 0", L"exit code", L"close"}));
    }
}

TEST_F(EndByForceTest, AProcessThatRunsOnIsToldAbout)
{
    answers = {IDYES, IDOK, IDYES};
    exitCodes = {running, running};
    EXPECT_TRUE(End());
    EXPECT_EQ(calls, Joined(UntilExitCode(), {hangs, warning, L"terminate 0", L"exit code",
                                              L"notice Can't kill process.", L"for 3000", L"close"}));
}

TEST_F(EndByForceTest, WhenNoExitCodeCanBeHadAfterwardsTheOneBeforeCounts)
{
    answers = {IDYES, IDOK, IDYES};
    exitCodes = {running};
    EXPECT_TRUE(End());
    EXPECT_EQ(calls, Joined(UntilExitCode(), {hangs, warning, L"terminate 0", L"exit code",
                                              L"notice Can't kill process.", L"for 3000", L"close"}));
}

// While a box is open the main window may go with all its pages.
TEST_F(EndByForceTest, NothingIsDoneOnceTheMainWindowHasGone)
{
    const Calls all = Joined(UntilExitCode(), {hangs, warning});
    const size_t callsUntilBox[] = {1, 8, 9};
    for (size_t which = 1; which <= 3; which++) {
        for (const bool isAnswered : {false, true}) {
            windows.windows[main] = {};
            answers = {IDYES, IDOK, IDYES};
            exitCodes = {running, 0};
            duringBox = [&](size_t opened) {
                if (opened == which) {
                    windows.windows.erase(main);
                    answers[0] = isAnswered ? answers[0] : 0;
                }
            };
            EXPECT_FALSE(End()) << which;
            EXPECT_EQ(calls,
                      Calls(all.begin(), all.begin() + static_cast<ptrdiff_t>(callsUntilBox[which - 1])))
                << which << isAnswered;
        }
    }
}
