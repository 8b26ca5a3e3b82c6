// A profile of a suite's own.
#include "tests/support/OwnProfile.h"

#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstring>

void UseOwnProfile(const char* text)
{
    static const TempFolder folder;
    const std::vector<unsigned char> bytes(text, text + strlen(text));
    SetEnvironmentVariableW(L"HANDHELD_PROFILE", folder.WriteFile(L"own.ini", bytes).c_str());
}

bool IsOnlySuite()
{
    return testing::UnitTest::GetInstance()->test_suite_to_run_count() == 1;
}
