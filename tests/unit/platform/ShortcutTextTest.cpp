// The device's shortcut files.
#include "platform/pc/common/ShortcutText.h"

#include <gtest/gtest.h>

using handheld::ShortcutTextPath;

TEST(ShortcutTextTest, ThePathStandsBehindTheLength)
{
    EXPECT_EQ(ShortcutTextPath("17#\\Windows\\calc.exe"), "\\Windows\\calc.exe");
    EXPECT_EQ(ShortcutTextPath("5#\\Windows\\calc.exe\r\n"), "\\Windows\\calc.exe");
}

TEST(ShortcutTextTest, ArgumentsAndQuotesDoNotBelongToIt)
{
    EXPECT_EQ(ShortcutTextPath("24#\"\\Program Files\\a b.exe\" -x"), "\\Program Files\\a b.exe");
    EXPECT_EQ(ShortcutTextPath("20#\\Windows\\a.exe -x y"), "\\Windows\\a.exe");
}

TEST(ShortcutTextTest, AnythingElseIsNoShortcutText)
{
    EXPECT_EQ(ShortcutTextPath(""), "");
    EXPECT_EQ(ShortcutTextPath("#\\a.exe"), "");
    EXPECT_EQ(ShortcutTextPath("12"), "");
    EXPECT_EQ(ShortcutTextPath("x12#\\a.exe"), "");
    EXPECT_EQ(ShortcutTextPath(std::string_view("L\0\0\0\x01\x14\x02\0", 8)), "");
}
