// The device's shortcut files.
#include "platform/pc/common/ShortcutText.h"

#include <gtest/gtest.h>

using handheld::ShortcutTextCommand;
using handheld::SplitCommand;

static void ExpectParts(std::wstring_view command, std::wstring_view path, std::wstring_view arguments)
{
    const handheld::CommandParts parts = SplitCommand(command);
    EXPECT_EQ(parts.path, path) << std::wstring(command);
    EXPECT_EQ(parts.arguments, arguments) << std::wstring(command);
}

TEST(ShortcutTextTest, TheCommandStandsBehindTheLength)
{
    EXPECT_EQ(ShortcutTextCommand("17#\\Windows\\calc.exe"), "\\Windows\\calc.exe");
    EXPECT_EQ(ShortcutTextCommand("5#\\Windows\\calc.exe\r\n"), "\\Windows\\calc.exe");
    EXPECT_EQ(ShortcutTextCommand(std::string_view("3#\\a\0b", 6)), "\\a");
}

TEST(ShortcutTextTest, QuotesAndArgumentsBelongToIt)
{
    EXPECT_EQ(ShortcutTextCommand("24#\"\\Program Files\\a b.exe\" -x #2"),
              "\"\\Program Files\\a b.exe\" -x #2");
    EXPECT_EQ(ShortcutTextCommand("20#\\Windows\\a.exe -x y"), "\\Windows\\a.exe -x y");
}

TEST(ShortcutTextTest, AnythingElseIsNoShortcutText)
{
    EXPECT_EQ(ShortcutTextCommand(""), "");
    EXPECT_EQ(ShortcutTextCommand("#\\a.exe"), "");
    EXPECT_EQ(ShortcutTextCommand("12"), "");
    EXPECT_EQ(ShortcutTextCommand("12#"), "");
    EXPECT_EQ(ShortcutTextCommand("x12#\\a.exe"), "");
    EXPECT_EQ(ShortcutTextCommand(std::string_view("L\0\0\0\x01\x14\x02\0", 8)), "");
}

TEST(ShortcutTextTest, ACommandIsAPathAndItsArguments)
{
    ExpectParts(L"\"\\Program Files\\a b.exe\"  -x \"y z\"", L"\\Program Files\\a b.exe", L"-x \"y z\"");
    ExpectParts(L"\\Windows\\a.exe -x y", L"\\Windows\\a.exe", L"-x y");
    ExpectParts(L"\\Windows\\a.exe", L"\\Windows\\a.exe", L"");
    ExpectParts(L"\\Windows\\a.exe ", L"\\Windows\\a.exe", L"");
    ExpectParts(L"\"\\no end", L"\\no end", L"");
    ExpectParts(L"\"", L"", L"");
    ExpectParts(L"", L"", L"");
}
