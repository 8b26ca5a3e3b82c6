// A program for the device gets the platform's true answers: it asks, compares, and ends with how many of its
// questions were answered wrongly.
#include "tests/runner/GuestRun.h"

#include <gtest/gtest.h>

TEST(ServedProgramTest, EveryAnswerIsRight)
{
    const GuestRun run(L"ServedProgram", L"");
    EXPECT_EQ(run.ExitCode(), 0u) << run.Log();
    EXPECT_FALSE(run.Says("FINDING")) << run.Log();
}

TEST(ServedProgramTest, WrongAnswersAreCounted)
{
    EXPECT_EQ(GuestRun(L"ServedProgram", L"2").ExitCode(), 2u);
}

// What the program has not given back is told with who wanted it.
TEST(ServedProgramTest, WhatIsLeftIsNamed)
{
    const GuestRun run(L"ServedProgram", L"2");
    EXPECT_TRUE(run.Says("heap: 1 blocks of 24 bytes are left")) << run.Log();
    EXPECT_TRUE(run.Says("left: 1 blocks of 24 bytes by LeaveABlock")) << run.Log();
}
