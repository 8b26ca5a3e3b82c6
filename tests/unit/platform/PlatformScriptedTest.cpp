// What a profile scripts is what the program is told: memory, storage, cards, battery, tier.
#include "platform/ce.h"
#include "tests/support/OwnProfile.h"

#include <gtest/gtest.h>

class PlatformScriptedTest : public testing::Test
{
  protected:
    static void SetUpTestSuite()
    {
        UseOwnProfile("[handheld]\n"
                      "tier = 2\n"
                      "root = C:\\windows\\\n"
                      "cards = First Card, \"\", Last\n"
                      "[memory]\n"
                      "physical = 67108864\n"
                      "page-file = 0\n"
                      "virtual = 8589934592\n"
                      "virtual-free = 5\n"
                      "[storage]\n"
                      "\\ = 6000000000, 5000000000\n"
                      "\\First Card = 0, 10\n"
                      "\\Last = fail\n"
                      "[battery]\n"
                      "percent = 255\n"
                      "ac = 2\n"
                      "life = 4294967295\n"
                      "full-life = 0\n"
                      "backup-percent = 3\n");
    }

    void SetUp() override
    {
        if (!IsOnlySuite()) {
            GTEST_SKIP() << "another suite may have read the profile already; run this one alone";
        }
    }
};

static std::vector<std::wstring> CardNames()
{
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW card;
    memset(&card, 0xAA, sizeof card);
    const HANDLE search = FindFirstFlashCard(&card);
    EXPECT_NE(search, INVALID_HANDLE_VALUE);
    BOOL more = search != INVALID_HANDLE_VALUE;
    while (more) {
        names.emplace_back(card.cFileName);
        EXPECT_EQ(card.dwFileAttributes, DWORD{FILE_ATTRIBUTE_DIRECTORY});
        EXPECT_EQ(card.nFileSizeLow, 0u);
        EXPECT_EQ(card.ftLastWriteTime.dwLowDateTime, 0u);
        memset(&card, 0xAA, sizeof card);
        more = FindNextFlashCard(search, &card);
    }
    EXPECT_EQ(GetLastError(), DWORD{ERROR_NO_MORE_FILES});
    EXPECT_TRUE(FindClose(search));
    return names;
}

TEST_F(PlatformScriptedTest, MemoryIsAsItIsWritten)
{
    MEMORYSTATUS status = {};
    GlobalMemoryStatus(&status);
    EXPECT_EQ(status.dwTotalPhys, 67108864u);
    EXPECT_GT(status.dwAvailPhys, 0u);
    EXPECT_LT(status.dwAvailPhys, 67108864u);
    EXPECT_EQ(status.dwTotalPageFile, 0u);
    EXPECT_EQ(status.dwAvailPageFile, 0u);
    EXPECT_EQ(status.dwTotalVirtual, 0xFFFFFFFFu);
    EXPECT_EQ(status.dwAvailVirtual, 5u);
    const auto used = status.dwTotalPhys - status.dwAvailPhys;
    EXPECT_EQ(status.dwMemoryLoad, used * 100 / status.dwTotalPhys);
}

TEST_F(PlatformScriptedTest, StorageIsAsItIsWritten)
{
    ULARGE_INTEGER available, total, free;
    ASSERT_TRUE(GetDiskFreeSpaceExW(L"\\", &available, &total, &free));
    EXPECT_EQ(available.QuadPart, 5000000000u);
    EXPECT_EQ(total.QuadPart, 6000000000u);
    EXPECT_EQ(free.QuadPart, 5000000000u);
    ASSERT_TRUE(GetDiskFreeSpaceExW(L"\\first card", &available, &total, &free));
    EXPECT_EQ(total.QuadPart, 0u);
    EXPECT_EQ(free.QuadPart, 10u);
    EXPECT_FALSE(GetDiskFreeSpaceExW(L"\\Last", &available, &total, &free));
    EXPECT_EQ(free.QuadPart, 10u) << "a failure leaves the outputs alone";
}

TEST_F(PlatformScriptedTest, FilesAreFoundBelowTheWrittenRoot)
{
    WIN32_FIND_DATAW data = {};
    const HANDLE search = FindFirstFileW(L"\\system32", &data);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(FindClose(search));
    EXPECT_EQ(FindFirstFileW(L"\\windows", &data), INVALID_HANDLE_VALUE);
}

TEST_F(PlatformScriptedTest, TheRootIsSearchedAndFilesAreOpenedBelowIt)
{
    WIN32_FIND_DATAW data = {};
    bool found = false;
    const HANDLE search =
        FindFirstFileExW(L"\\*", FindExInfoStandard, &data, FindExSearchLimitToDirectories, nullptr, 0);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    do {
        found = found || _wcsicmp(data.cFileName, L"system32") == 0;
    } while (FindNextFileW(search, &data));
    EXPECT_TRUE(FindClose(search));
    EXPECT_TRUE(found);
    const HANDLE file =
        CreateFileW(L"\\win.ini", GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(file, INVALID_HANDLE_VALUE) << "error " << GetLastError();
    CloseHandle(file);
}

TEST_F(PlatformScriptedTest, TheCardsComeInOrderAlsoTheOneWithoutAName)
{
    const std::vector<std::wstring> names = {L"First Card", L"", L"Last"};
    EXPECT_EQ(CardNames(), names);
    EXPECT_EQ(CardNames(), names) << "the second search begins again";
}

TEST_F(PlatformScriptedTest, TwoSearchesForCardsDoNotMeet)
{
    WIN32_FIND_DATAW card = {};
    const HANDLE one = FindFirstFlashCard(&card);
    const HANDLE other = FindFirstFlashCard(&card);
    ASSERT_NE(one, other);
    EXPECT_TRUE(FindNextFlashCard(one, &card));
    EXPECT_TRUE(FindNextFlashCard(one, &card));
    EXPECT_STREQ(card.cFileName, L"Last");
    EXPECT_TRUE(FindNextFlashCard(other, &card));
    EXPECT_STREQ(card.cFileName, L"");
    EXPECT_TRUE(FindClose(one));
    EXPECT_TRUE(FindClose(other));
}

TEST_F(PlatformScriptedTest, AHandleThatIsNoSearchForCardsIsRefused)
{
    WIN32_FIND_DATAW card = {};
    EXPECT_FALSE(FindNextFlashCard(INVALID_HANDLE_VALUE, &card));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_INVALID_HANDLE});
    EXPECT_FALSE(FindNextFlashCard(nullptr, &card));
}

TEST_F(PlatformScriptedTest, TheBatteryIsAsItIsWritten)
{
    SYSTEM_POWER_STATUS_EX status = {};
    ASSERT_TRUE(GetSystemPowerStatusEx(&status, TRUE));
    EXPECT_EQ(status.ACLineStatus, 2);
    EXPECT_EQ(status.BatteryLifePercent, 255);
    EXPECT_EQ(status.BatteryLifeTime, 0xFFFFFFFF);
    EXPECT_EQ(status.BatteryFullLifeTime, 0u);
    EXPECT_EQ(status.BackupBatteryLifePercent, 3);
}

TEST_F(PlatformScriptedTest, ADeviceOfTwoTiersSaysSoWhateverFailed)
{
    for (const DWORD error :
         {DWORD{ERROR_SUCCESS}, DWORD{ERROR_INVALID_PARAMETER}, DWORD{ERROR_ACCESS_DENIED}}) {
        DWORD value = 7;
        SetLastError(error);
        EXPECT_EQ(QueryPolicy(4123, &value), S_OK);
        EXPECT_EQ(value, 0u);
    }
}
