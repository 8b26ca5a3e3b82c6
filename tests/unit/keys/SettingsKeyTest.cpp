// Where the program keeps its settings.
#include "keys/SettingsKey.h"

#include <gtest/gtest.h>

#include <algorithm>

TEST(SettingsKeyTest, ThePathIsMadeInItsRoomOf255Characters)
{
    SettingsKeyPath path;
    static_assert(sizeof path == 510);
    std::fill(std::begin(path), std::end(path), L'?');
    EXPECT_EQ(MakeSettingsKeyPath(path), path);
    EXPECT_STREQ(path, L"Software\\Quorvane\\HomeKeySetting");
    EXPECT_EQ(wcslen(path), 32u);
    EXPECT_EQ(std::count(std::begin(path), std::end(path), L'?'), 255 - 33);
}
