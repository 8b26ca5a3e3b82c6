// A screen of unequal resolutions, for the tests that tell what goes by which of them.
#pragma once

#include "tests/support/Spy.h"

#include <gtest/gtest.h>

// The program reads the resolutions once in a process. So that no other suite gets these, each test runs in a
// process of its own.
class UnequalScreen
{
    SPY(GetDeviceCaps) caps;

  protected:
    static constexpr int across = 288; // three pixels for each of 96 dpi
    static constexpr int down = 96;    // one

    UnequalScreen();

    template <typename Test>
    static void InOwnProcess(Test test)
    {
        EXPECT_EXIT(
            {
                test();
                EndWithResult();
            },
            testing::ExitedWithCode(0), "");
    }

  private:
    // For the other process: ends it, and tells this one what has failed.
    [[noreturn]] static void EndWithResult();
};
