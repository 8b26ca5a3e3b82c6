// The entry of every test executable.
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstdio>

int main(int argumentCount, char** arguments)
{
    // A box must not wait for a user; it is written to the standard error output, in child processes too.
    SetEnvironmentVariableW(L"HANDHELD_HEADLESS", L"1");
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);

    BeginScratch();
    testing::InitGoogleTest(&argumentCount, arguments);
    const int result = RUN_ALL_TESTS();
    EndScratch();
    // A filter that matches nothing is a mistake in the list of tests, not a success.
    if (!testing::GTEST_FLAG(list_tests) && testing::UnitTest::GetInstance()->test_to_run_count() == 0) {
        fprintf(stderr, "no test was selected\n");
        return 1;
    }
    return result;
}
