// A profile that says nothing: memory, storage and battery are the PC's, there are no cards, and the tier is
// told by the failure.
#include "platform/ce.h"
#include "tests/support/OwnProfile.h"

#include <gtest/gtest.h>

class PlatformPlainTest : public testing::Test
{
  protected:
    static void SetUpTestSuite() { UseOwnProfile("[handheld]\n"); }

    void SetUp() override
    {
        if (!IsOnlySuite()) {
            GTEST_SKIP() << "another suite may have read the profile already; run this one alone";
        }
    }
};

// The system's own function, past the substitute.
template <class Function>
static Function* SystemsOwn(const char* name)
{
    return reinterpret_cast<Function*>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), name)));
}

TEST_F(PlatformPlainTest, MemoryIsThePcsIn32Bits)
{
    MEMORYSTATUSEX real = {};
    real.dwLength = sizeof real;
    ASSERT_TRUE(SystemsOwn<BOOL WINAPI(MEMORYSTATUSEX*)>("GlobalMemoryStatusEx")(&real));
    MEMORYSTATUS status = {};
    GlobalMemoryStatus(&status);
    EXPECT_EQ(status.dwLength, sizeof(MEMORYSTATUS));
    EXPECT_EQ(status.dwTotalPhys, std::min(real.ullTotalPhys, 0xFFFFFFFFull));
    EXPECT_EQ(status.dwTotalVirtual, 0xFFFFFFFFu) << "of a 64-bit process";
    EXPECT_LE(status.dwAvailPhys, 0xFFFFFFFFu);
    EXPECT_GT(status.dwAvailPhys, 0u);
}

TEST_F(PlatformPlainTest, TheRootIsTheSystemsDrive)
{
    ULARGE_INTEGER available, total, free;
    ULARGE_INTEGER realAvailable, realTotal, realFree;
    using Ask = BOOL WINAPI(const wchar_t*, ULARGE_INTEGER*, ULARGE_INTEGER*, ULARGE_INTEGER*);
    ASSERT_TRUE(SystemsOwn<Ask>("GetDiskFreeSpaceExW")(L"C:\\", &realAvailable, &realTotal, &realFree));
    // From another drive, which has no such folder.
    for (const wchar_t* path : {L"\\", L"\\windows", static_cast<const wchar_t*>(nullptr)}) {
        total.QuadPart = 0;
        ASSERT_TRUE(SetCurrentDirectoryW(L"Z:\\proc"));
        const BOOL known = GetDiskFreeSpaceExW(path, &available, &total, &free);
        SetCurrentDirectoryW(L"C:\\");
        ASSERT_TRUE(known);
        EXPECT_EQ(total.QuadPart, realTotal.QuadPart);
    }
    EXPECT_TRUE(GetDiskFreeSpaceExW(L"\\", nullptr, nullptr, nullptr));
}

TEST_F(PlatformPlainTest, AStorageQueryThatFailsLeavesItsOutputsAlone)
{
    ULARGE_INTEGER available, total, free;
    available.QuadPart = 1;
    total.QuadPart = 2;
    free.QuadPart = 3;
    EXPECT_FALSE(GetDiskFreeSpaceExW(L"\\No Such Card", &available, &total, &free));
    EXPECT_EQ(available.QuadPart, 1u);
    EXPECT_EQ(total.QuadPart, 2u);
    EXPECT_EQ(free.QuadPart, 3u);
}

TEST_F(PlatformPlainTest, FilesOfTheRootAreFoundFromEveryDrive)
{
    WIN32_FIND_DATAW data = {};
    ASSERT_TRUE(SetCurrentDirectoryW(L"Z:\\proc"));
    const HANDLE search = FindFirstFileW(L"\\windows", &data);
    SetCurrentDirectoryW(L"C:\\");
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    EXPECT_STREQ(data.cFileName, L"windows");
    EXPECT_TRUE(FindClose(search));
}

TEST_F(PlatformPlainTest, TheStartMenuIsThePcs)
{
    IMalloc* allocator = nullptr;
    ITEMIDLIST* item = nullptr;
    wchar_t path[MAX_PATH] = {};
    ASSERT_EQ(SHGetMalloc(&allocator), S_OK);
    ASSERT_EQ(SHGetSpecialFolderLocation(nullptr, CSIDL_STARTMENU, &item), S_OK);
    EXPECT_TRUE(SHGetPathFromIDList(item, path));
    allocator->Free(item);
    allocator->Release();
    EXPECT_NE(std::wstring(path).find(L"\\Microsoft\\Windows\\Start Menu"), std::wstring::npos) << path;
}

TEST_F(PlatformPlainTest, ThereAreNoCards)
{
    WIN32_FIND_DATAW card = {};
    card.cFileName[0] = L'x';
    SetLastError(0);
    EXPECT_EQ(FindFirstFlashCard(&card), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), ERROR_NO_MORE_FILES);
    EXPECT_EQ(card.cFileName[0], L'x');
}

TEST_F(PlatformPlainTest, TheBatteryIsThePcs)
{
    SYSTEM_POWER_STATUS real = {};
    ASSERT_TRUE(SystemsOwn<BOOL WINAPI(SYSTEM_POWER_STATUS*)>("GetSystemPowerStatus")(&real));
    SYSTEM_POWER_STATUS_EX status = {};
    ASSERT_TRUE(GetSystemPowerStatusEx(&status, TRUE));
    EXPECT_EQ(status.ACLineStatus, real.ACLineStatus);
    EXPECT_EQ(status.BatteryFlag, real.BatteryFlag);
    EXPECT_EQ(status.BackupBatteryLifePercent, 255);
}

TEST_F(PlatformPlainTest, TheTierIsToldByTheFailureThatTheQuestionFollows)
{
    DWORD value = 7;
    SetLastError(ERROR_ACCESS_DENIED);
    EXPECT_EQ(QueryPolicy(4123, &value), S_OK);
    EXPECT_EQ(value, 0u);
    EXPECT_EQ(OpenProcess(SYNCHRONIZE | PROCESS_TERMINATE, FALSE, 0x7FFFFFF0), nullptr);
    EXPECT_EQ(QueryPolicy(4123, &value), S_OK);
    EXPECT_EQ(value, 1u) << "a process that has gone was not refused";
}

TEST_F(PlatformPlainTest, AnotherPolicyOrNowhereToAnswerIsRefused)
{
    DWORD value = 7;
    EXPECT_EQ(QueryPolicy(4124, &value), E_INVALIDARG);
    EXPECT_EQ(QueryPolicy(0, &value), E_INVALIDARG);
    EXPECT_EQ(QueryPolicy(4123, nullptr), E_POINTER);
    EXPECT_EQ(value, 7u);
}
