// Where the device's paths lead on the PC.
#include "platform/pc/common/DevicePath.h"

#include <gtest/gtest.h>

using handheld::DevicePathBelow;

TEST(DevicePathTest, APathFromASingleBackslashGoesToTheRoot)
{
    EXPECT_EQ(DevicePathBelow(L"C:", L"\\"), L"C:\\");
    EXPECT_EQ(DevicePathBelow(L"C:", L"\\Storage Card"), L"C:\\Storage Card");
    EXPECT_EQ(DevicePathBelow(L"D:\\Device", L"\\a\\*.lnk"), L"D:\\Device\\a\\*.lnk");
}

TEST(DevicePathTest, EveryOtherPathStays)
{
    for (const wchar_t* path :
         {L"", L"file", L"a\\b", L"Z:\\a", L"\\\\server\\share", L"\\\\?\\C:\\a", L"/a"}) {
        EXPECT_EQ(DevicePathBelow(L"C:", path), path);
    }
}
