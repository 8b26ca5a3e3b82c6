// The command line of a button.
#include "keys/CommandTail.h"
#include "tests/support/TestHeap.h"

#include <gtest/gtest.h>

#include <string>

static void ExpectTail(const std::wstring& text, uint32_t keyCode, uint32_t shortAction, uint32_t longAction,
                       const std::wstring& shortFile = L"", const std::wstring& longFile = L"")
{
    SCommandTail tail;
    tail.keyCode = 77; // what an earlier text left is not to shine through
    tail.shortAction = tail.longAction = 88;
    tail.shortFile = L"left";
    tail.longFile = L"over";
    tail.Parse(text.c_str());
    EXPECT_EQ(tail.keyCode, keyCode) << text;
    EXPECT_EQ(tail.shortAction, shortAction) << text;
    EXPECT_EQ(tail.longAction, longAction) << text;
    EXPECT_EQ(std::wstring(tail.shortFile), shortFile) << text;
    EXPECT_EQ(std::wstring(tail.longFile), longFile) << text;
}

TEST(CommandTailTest, AWholeLineGivesKeyAndActions)
{
    ExpectTail(L"193 3*9", 193, 3, 9);
    ExpectTail(L"1 0*12", 1, 0, 12);
    ExpectTail(L"198 10*007", 198, 10, 7);
}

TEST(CommandTailTest, AnEmptyTokenIsActionOne)
{
    ExpectTail(L"193 *", 193, 1, 1);
    ExpectTail(L"193 3*", 193, 3, 1);
    ExpectTail(L"193 *9", 193, 1, 9);
}

TEST(CommandTailTest, ATokenThatIsNoNumberIsAFileToStart)
{
    ExpectTail(L"193 \\a b.lnk*12", 193, 2, 12, L"\\a b.lnk");
    ExpectTail(L"193 3*\\Windows\\Start Menu\\x.lnk", 193, 3, 2, L"", L"\\Windows\\Start Menu\\x.lnk");
    ExpectTail(L"193 a*b", 193, 2, 2, L"a", L"b");
    ExpectTail(L"193 2*2", 193, 2, 2);
    ExpectTail(L"193 \"q & %s\"*Ключ", 193, 2, 2, L"\"q & %s\"", L"Ключ");
}

TEST(CommandTailTest, OnlyDecimalDigitsMakeANumber)
{
    for (const wchar_t* token : {L"+3", L"-3", L" 3", L"3 ", L"0x3", L"3.", L"3\t", L"３", L"٣", L"3a"})
        ExpectTail(std::wstring(L"193 ") + token + L"*9", 193, 2, 9, token);
}

TEST(CommandTailTest, WithoutABlankOrAStarItIsANormalStart)
{
    for (const wchar_t* text :
         {L"", L" ", L"   \t\r\n ", L"193", L"3*9", L"193*3*9", L"193 3", L"193 ", L" 193 3 9", L"*", L"**",
          L"-", L"193\t3*9", L"193\n3*9", L"3*9 ", L"193* 3", L"\\x y.exe"})
        ExpectTail(text, 0, 1, 1);
}

TEST(CommandTailTest, AStarBeforeTheBlankBelongsToTheKey)
{
    ExpectTail(L"193* 3*9", 193, 3, 9);
    ExpectTail(L"* *", 0, 1, 1);
    ExpectTail(L"*193 3*9", 0, 3, 9);
}

TEST(CommandTailTest, TheTextIsTrimmedFirst)
{
    ExpectTail(L"  193 3*9  ", 193, 3, 9);
    ExpectTail(L"\t\r\n 193 3*9\r\n\t ", 193, 3, 9);
    ExpectTail(L" 193 3*  ", 193, 3, 1);
}

TEST(CommandTailTest, TheFirstBlankEndsTheKeyAndTheFirstStarTheShortToken)
{
    ExpectTail(L"193 3*9*8", 193, 3, 2, L"", L"9*8");
    ExpectTail(L"193 ***", 193, 1, 2, L"", L"**");
    ExpectTail(L"193  3*9", 193, 2, 9, L" 3");
    ExpectTail(L"193 3 * 9", 193, 2, 2, L"3 ", L" 9");
}

TEST(CommandTailTest, TheKeyIsWhateverNumberItBeginsWith)
{
    ExpectTail(L"abc 3*9", 0, 3, 9);
    ExpectTail(L"0xC1 3*9", 0, 3, 9);
    ExpectTail(L"193abc 3*9", 193, 3, 9);
    ExpectTail(L"-5 3*9", static_cast<uint32_t>(-5), 3, 9);
    ExpectTail(L"+7 3*9", 7, 3, 9);
    ExpectTail(L"0 3*9", 0, 3, 9);
    ExpectTail(L"\"193 3*9\"", 0, 3, 2, L"", L"9\"");
}

TEST(CommandTailTest, NumbersThatAreTooLargeAreNoActions)
{
    for (const wchar_t* digits : {L"2147483647", L"2147483648", L"4294967298", L"99999999999999999999"}) {
        SCommandTail tail;
        tail.Parse((std::wstring(L"193 ") + digits + L"*" + digits).c_str());
        EXPECT_EQ(tail.keyCode, 193u);
        EXPECT_GT(tail.shortAction, 12u) << digits;
        EXPECT_GT(tail.longAction, 12u) << digits;
        EXPECT_TRUE(tail.shortFile.IsEmpty());
    }
}

TEST(CommandTailTest, LinesOf5000CharactersAreTaken)
{
    const std::wstring file(5000, L'x');
    ExpectTail(L"193 " + file + L"*" + file, 193, 2, 2, file, file);
    ExpectTail(std::wstring(5000, L' ') + L"193 3*9" + std::wstring(5000, L'\t'), 193, 3, 9);
    ExpectTail(file, 0, 1, 1);
    ExpectTail(file + L" 3*9", 0, 3, 9);
    ExpectTail(L"193 " + std::wstring(5000, L'*'), 193, 1, 2, L"", std::wstring(4999, L'*'));
    ExpectTail(std::wstring(5000, L'0') + L"193 3*9", 193, 3, 9);
}

TEST(CommandTailTest, NoTextIsANormalStart)
{
    SCommandTail tail;
    tail.Parse(nullptr);
    EXPECT_EQ(tail.keyCode, 0u);
    EXPECT_EQ(tail.shortAction, 1u);
    EXPECT_EQ(tail.longAction, 1u);
}

TEST(CommandTailTest, ParsingLeavesNothingAllocated)
{
    const size_t before = LiveBlocks();
    for (int i = 0; i < 100; i++) {
        SCommandTail tail;
        tail.Parse(L"193 \\a b.lnk*\\c d.lnk");
        tail.Parse(L"193 3*9");
    }
    EXPECT_EQ(LiveBlocks(), before);
}
