// The bound of the substitute's icon list. It fills the list for good, so it runs in a process of its own.
#include "platform/ce.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <string>

class ManyIconsTest : public testing::Test
{
  protected:
    static int IndexOf(const std::wstring& path)
    {
        SHFILEINFOW info = {};
        info.iIcon = -1;
        SHGetFileInfo(path.c_str(), 0, &info, sizeof info, SHGFI_SYSICONINDEX | SHGFI_SMALLICON);
        return info.iIcon;
    }
};

TEST_F(ManyIconsTest, BehindAThousandFilesAProgramHasTheGenericIcon)
{
    if (testing::UnitTest::GetInstance()->test_suite_to_run_count() > 1) {
        GTEST_SKIP() << "other suites ask for icons of their own; run this one alone";
    }
    constexpr int mostFiles = 1000;
    constexpr int generic = 2;
    const TempFolder folder;
    const std::wstring known = L"C:\\windows\\system32\\notepad.exe";
    const int own = IndexOf(known);
    EXPECT_GT(own, generic);
    for (int i = 1; i < mostFiles; i++) {
        ASSERT_EQ(IndexOf(folder.WriteFile(std::to_wstring(i).c_str(), {})), 0);
    }
    EXPECT_EQ(IndexOf(L"C:\\windows\\regedit.exe"), generic);
    EXPECT_EQ(IndexOf(known), own);
    EXPECT_EQ(IndexOf(folder.WriteFile(L"one more", {})), 0);
}
