// What of a PC's command line a program of a device gets to see.
#include "platform/pc/common/CommandLine.h"

#include <gtest/gtest.h>

using handheld::CommandTail;

TEST(CommandLineStripTest, ThePathOfTheProgramIsTakenOff)
{
    EXPECT_EQ(CommandTail(L"\\Quorvane.exe 193 3*9"), L"193 3*9");
    EXPECT_EQ(CommandTail(L"\"C:\\Program Files\\Quorvane\\Quorvane.exe\" 193 3*9"), L"193 3*9");
    EXPECT_EQ(CommandTail(L"\"C:\\Program Files\\Quorvane\\Quorvane.exe\"   193 3*9"), L"193 3*9");
    EXPECT_EQ(CommandTail(L"Quorvane.exe\t193 3*9"), L"193 3*9");
}

TEST(CommandLineStripTest, WithoutArgumentsNothingIsLeft)
{
    for (const wchar_t* line : {L"", L"Quorvane.exe", L"Quorvane.exe  ", L"\"C:\\a b\\Quorvane.exe\"",
                                L"\"C:\\a b\\Quorvane.exe\" ", L"\"C:\\no closing quote 1 2*3"}) {
        EXPECT_EQ(CommandTail(line), L"") << testing::PrintToString(std::wstring(line));
    }
}

TEST(CommandLineStripTest, AnArgumentThatIsQuotedAsAWholeLosesItsQuotes)
{
    EXPECT_EQ(CommandTail(L"\"Z:\\x.exe\" \"193 3*9\""), L"193 3*9");
    EXPECT_EQ(CommandTail(L"x.exe \"193 3*9\"  "), L"193 3*9");
    EXPECT_EQ(CommandTail(L"x.exe \"\""), L"");
}

TEST(CommandLineStripTest, OtherQuotesAndBlanksStay)
{
    EXPECT_EQ(CommandTail(L"x.exe 193 \"3*9\""), L"193 \"3*9\"");
    EXPECT_EQ(CommandTail(L"x.exe \"193\" \"3*9\""), L"\"193\" \"3*9\"");
    EXPECT_EQ(CommandTail(L"x.exe \"193 3*9"), L"\"193 3*9");
    EXPECT_EQ(CommandTail(L"x.exe 193 3*9 "), L"193 3*9 ");
    EXPECT_EQ(CommandTail(L"x.exe \""), L"\"");
}
