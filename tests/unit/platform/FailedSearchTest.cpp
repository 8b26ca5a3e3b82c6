// A search for files that finds nothing.
#include "platform/ce.h"
#include "tests/support/BusyBlocks.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

class FailedSearchTest : public testing::Test
{};

TEST_F(FailedSearchTest, LeavesNothingOpen)
{
    constexpr int searches = 100;
    const TempFolder empty;
    const std::wstring pattern = empty.Path(L"*"); // "." and ".." fit, and the device has neither
    WIN32_FIND_DATAW data;
    const auto search = [&] {
        EXPECT_EQ(FindFirstFileW(pattern.c_str(), &data), INVALID_HANDLE_VALUE);
        EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    };
    search();
    const int before = BusyBlocks();
    for (int i = 0; i < searches; i++) {
        search();
    }
    EXPECT_LT(BusyBlocks(), before + searches / 2);
}
