// Which files a device's search finds.
#include "platform/pc/common/FindPattern.h"

#include <gtest/gtest.h>

using handheld::MatchesPattern;

TEST(FindPatternTest, AnExtensionIsMatchedExactly)
{
    EXPECT_TRUE(MatchesPattern(L"Mail.lnk", L"*.lnk"));
    EXPECT_TRUE(MatchesPattern(L"a.b.LNK", L"*.lnk"));
    EXPECT_TRUE(MatchesPattern(L".lnk", L"*.lnk"));
    EXPECT_FALSE(MatchesPattern(L"c.lnkx", L"*.lnk"));
    EXPECT_FALSE(MatchesPattern(L"c.lnk.bak", L"*.lnk"));
    EXPECT_FALSE(MatchesPattern(L"lnk", L"*.lnk"));
}

TEST(FindPatternTest, EverythingIsFoundByAStarAndByStarDotStar)
{
    for (const wchar_t* name : {L"a", L"a.b", L".", L"Quorvane.exe"}) {
        EXPECT_TRUE(MatchesPattern(name, L"*"));
        EXPECT_TRUE(MatchesPattern(name, L"*.*"));
    }
}

TEST(FindPatternTest, AQuestionMarkIsExactlyOneCharacter)
{
    EXPECT_TRUE(MatchesPattern(L"a1.txt", L"a?.txt"));
    EXPECT_FALSE(MatchesPattern(L"a.txt", L"a?.txt"));
    EXPECT_FALSE(MatchesPattern(L"a12.txt", L"a?.txt"));
}

TEST(FindPatternTest, LetterCaseDoesNotCountInAnyScript)
{
    EXPECT_TRUE(MatchesPattern(L"\x041F\x043E\x0447\x0442\x0430", L"\x043F\x041E\x0427\x0422\x0410"));
    EXPECT_TRUE(MatchesPattern(L"QUORVANE.EXE", L"quorvane.exe"));
}

TEST(FindPatternTest, SeveralStarsShareTheNameAmongThem)
{
    EXPECT_TRUE(MatchesPattern(L"abcabc", L"*abc"));
    EXPECT_TRUE(MatchesPattern(L"xaxbx", L"*a*b*"));
    EXPECT_TRUE(MatchesPattern(L"ab", L"**a**b**"));
    EXPECT_FALSE(MatchesPattern(L"xbxax", L"*a*b*"));
    EXPECT_FALSE(MatchesPattern(L"abcab", L"*abc"));
}

TEST(FindPatternTest, AnEmptyPatternMatchesOnlyAnEmptyName)
{
    EXPECT_TRUE(MatchesPattern(L"", L""));
    EXPECT_TRUE(MatchesPattern(L"", L"*"));
    EXPECT_FALSE(MatchesPattern(L"a", L""));
    EXPECT_FALSE(MatchesPattern(L"", L"?"));
}
