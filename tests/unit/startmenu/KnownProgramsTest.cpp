// Which of the well-known programs a shortcut's target starts.
#include "startmenu/KnownPrograms.h"

#include <gtest/gtest.h>

TEST(KnownProgramsTest, EveryProgramByItsFile)
{
    EXPECT_EQ(KnownProgramOf(L"\\Windows\\poutlook.exe contacts"), 0);
    EXPECT_EQ(KnownProgramOf(L"\\Windows\\poutlook.exe calendar"), 1);
    EXPECT_EQ(KnownProgramOf(L"\\Windows\\poutlook.exe tasks"), 2);
    EXPECT_EQ(KnownProgramOf(L"\\Windows\\iexplore.exe"), 3);
    EXPECT_EQ(KnownProgramOf(L"\\Windows\\pimg.exe"), 4);
    EXPECT_EQ(KnownProgramOf(L"\\Windows\\cprog.exe"), 5);
    EXPECT_EQ(KnownProgramOf(L"\\Windows\\poutlook.exe notes"), 7);
}

TEST(KnownProgramsTest, CapitalsDoNotMatter)
{
    EXPECT_EQ(KnownProgramOf(L"\"\\WINDOWS\\POUTLOOK.EXE\" CALENDAR"), 1);
    EXPECT_EQ(KnownProgramOf(L"IExplore.EXE"), 3);
    EXPECT_EQ(KnownProgramOf(L"\\Program Files\\CProg.exe -dial 100%"), 5);
}

TEST(KnownProgramsTest, InternetSharingIsNeverFound)
{
    EXPECT_EQ(KnownProgramOf(L"\\Windows\\IntShrUI.exe"), -1);
    EXPECT_EQ(KnownProgramOf(L"\\Windows\\intshrui.exe"), -1);
}

TEST(KnownProgramsTest, OfSeveralPartsOfTheOrganiserTheFirstInOrderCounts)
{
    EXPECT_EQ(KnownProgramOf(L"poutlook.exe contacts calendar"), 1);
    EXPECT_EQ(KnownProgramOf(L"poutlook.exe notes tasks contacts calendar"), 1);
    EXPECT_EQ(KnownProgramOf(L"poutlook.exe notes tasks contacts"), 0);
    EXPECT_EQ(KnownProgramOf(L"poutlook.exe notes tasks"), 2);
    EXPECT_EQ(KnownProgramOf(L"\\Notes\\poutlook.exe"), 7);
}

TEST(KnownProgramsTest, TheOrganiserWithoutAPartIsNone)
{
    EXPECT_EQ(KnownProgramOf(L"\\Windows\\poutlook.exe"), -1);
    EXPECT_EQ(KnownProgramOf(L"\\Windows\\poutlook.exe inbox"), -1);
    EXPECT_EQ(KnownProgramOf(L"\\Windows\\poutlook.exe iexplore.exe cprog.exe"), -1);
}

TEST(KnownProgramsTest, OfSeveralOtherProgramsTheFirstInOrderCounts)
{
    EXPECT_EQ(KnownProgramOf(L"cprog.exe pimg.exe iexplore.exe"), 3);
    EXPECT_EQ(KnownProgramOf(L"cprog.exe pimg.exe"), 4);
    EXPECT_EQ(KnownProgramOf(L"IntShrUI.exe cprog.exe"), 5);
    EXPECT_EQ(KnownProgramOf(L"calendar cprog.exe"), 5);
}

TEST(KnownProgramsTest, OthersAreNone)
{
    for (const wchar_t* target : {L"", L"calendar", L"\\Windows\\calendar.exe", L"poutlook", L"pimg.ex",
                                  L"iexplore .exe", L"\\Windows\\calc.exe", L"\\Игры\\пасьянс.exe"}) {
        EXPECT_EQ(KnownProgramOf(target), -1);
    }
}
