// The command line of a button.
#include "keys/SKeyPress.h"
#include "tests/support/TestHeap.h"

#include <gtest/gtest.h>

#include <string>

static void ExpectTail(const std::wstring& text, int32_t vk, int32_t pressAction, int32_t holdAction,
                       const std::wstring& pressApplication = L"", const std::wstring& holdApplication = L"")
{
    SKeyPress press;
    press.vk = 77; // what an earlier text left is not to shine through
    press.pressAction = press.holdAction = 88;
    press.pressApplication = L"left";
    press.holdApplication = L"over";
    press.Parse(text.c_str());
    EXPECT_EQ(press.vk, vk) << text;
    EXPECT_EQ(press.pressAction, pressAction) << text;
    EXPECT_EQ(press.holdAction, holdAction) << text;
    EXPECT_EQ(std::wstring(press.pressApplication), pressApplication) << text;
    EXPECT_EQ(std::wstring(press.holdApplication), holdApplication) << text;
}

TEST(SKeyPressTest, AWholeLineGivesKeyAndActions)
{
    ExpectTail(L"193 3*9", 193, 3, 9);
    ExpectTail(L"1 0*12", 1, 0, 12);
    ExpectTail(L"198 10*007", 198, 10, 7);
}

TEST(SKeyPressTest, AnEmptyTokenIsActionOne)
{
    ExpectTail(L"193 *", 193, 1, 1);
    ExpectTail(L"193 3*", 193, 3, 1);
    ExpectTail(L"193 *9", 193, 1, 9);
}

TEST(SKeyPressTest, ATokenThatIsNoNumberIsAFileToStart)
{
    ExpectTail(L"193 \\a b.lnk*12", 193, 2, 12, L"\\a b.lnk");
    ExpectTail(L"193 3*\\Windows\\Start Menu\\x.lnk", 193, 3, 2, L"", L"\\Windows\\Start Menu\\x.lnk");
    ExpectTail(L"193 a*b", 193, 2, 2, L"a", L"b");
    ExpectTail(L"193 2*2", 193, 2, 2);
    ExpectTail(L"193 \"q & %s\"*Ключ", 193, 2, 2, L"\"q & %s\"", L"Ключ");
}

TEST(SKeyPressTest, OnlyDecimalDigitsMakeANumber)
{
    for (const wchar_t* token : {L"+3", L"-3", L" 3", L"3 ", L"0x3", L"3.", L"3\t", L"３", L"٣", L"3a"}) {
        ExpectTail(std::wstring(L"193 ") + token + L"*9", 193, 2, 9, token);
    }
}

TEST(SKeyPressTest, WithoutABlankOrAStarItIsANormalStart)
{
    for (const wchar_t* text :
         {L"", L" ", L"   \t\r\n ", L"193", L"3*9", L"193*3*9", L"193 3", L"193 ", L" 193 3 9", L"*", L"**",
          L"-", L"193\t3*9", L"193\n3*9", L"3*9 ", L"193* 3", L"\\x y.exe"}) {
        ExpectTail(text, 0, 1, 1);
    }
}

TEST(SKeyPressTest, AStarBeforeTheBlankBelongsToTheKey)
{
    ExpectTail(L"193* 3*9", 193, 3, 9);
    ExpectTail(L"* *", 0, 1, 1);
    ExpectTail(L"*193 3*9", 0, 3, 9);
}

TEST(SKeyPressTest, TheTextIsTrimmedFirst)
{
    ExpectTail(L"  193 3*9  ", 193, 3, 9);
    ExpectTail(L"\t\r\n 193 3*9\r\n\t ", 193, 3, 9);
    ExpectTail(L" 193 3*  ", 193, 3, 1);
}

TEST(SKeyPressTest, TheFirstBlankEndsTheKeyAndTheFirstStarThePressesToken)
{
    ExpectTail(L"193 3*9*8", 193, 3, 2, L"", L"9*8");
    ExpectTail(L"193 ***", 193, 1, 2, L"", L"**");
    ExpectTail(L"193  3*9", 193, 2, 9, L" 3");
    ExpectTail(L"193 3 * 9", 193, 2, 2, L"3 ", L" 9");
}

TEST(SKeyPressTest, TheKeyIsWhateverNumberItBeginsWith)
{
    ExpectTail(L"abc 3*9", 0, 3, 9);
    ExpectTail(L"0xC1 3*9", 0, 3, 9);
    ExpectTail(L"193abc 3*9", 193, 3, 9);
    ExpectTail(L"-5 3*9", -5, 3, 9);
    ExpectTail(L"+7 3*9", 7, 3, 9);
    ExpectTail(L"0 3*9", 0, 3, 9);
    ExpectTail(L"\"193 3*9\"", 0, 3, 2, L"", L"9\"");
}

TEST(SKeyPressTest, NumbersThatAreTooLargeAreNoActions)
{
    for (const wchar_t* digits : {L"2147483647", L"2147483648", L"4294967298", L"99999999999999999999"}) {
        SKeyPress press;
        press.Parse((std::wstring(L"193 ") + digits + L"*" + digits).c_str());
        EXPECT_EQ(press.vk, 193);
        for (const int32_t action : {press.pressAction, press.holdAction}) {
            EXPECT_TRUE(action < 0 || action > 12) << digits;
        }
        EXPECT_TRUE(press.pressApplication.IsEmpty());
    }
}

TEST(SKeyPressTest, LinesOf5000CharactersAreTaken)
{
    const std::wstring file(5000, L'x');
    ExpectTail(L"193 " + file + L"*" + file, 193, 2, 2, file, file);
    ExpectTail(std::wstring(5000, L' ') + L"193 3*9" + std::wstring(5000, L'\t'), 193, 3, 9);
    ExpectTail(file, 0, 1, 1);
    ExpectTail(file + L" 3*9", 0, 3, 9);
    ExpectTail(L"193 " + std::wstring(5000, L'*'), 193, 1, 2, L"", std::wstring(4999, L'*'));
    ExpectTail(std::wstring(5000, L'0') + L"193 3*9", 193, 3, 9);
}

TEST(SKeyPressTest, NoTextIsANormalStart)
{
    SKeyPress press;
    press.Parse(nullptr);
    EXPECT_EQ(press.vk, 0);
    EXPECT_EQ(press.pressAction, 1);
    EXPECT_EQ(press.holdAction, 1);
}

TEST(SKeyPressTest, ParsingLeavesNothingAllocated)
{
    const size_t before = LiveBlocks();
    for (int i = 0; i < 100; i++) {
        SKeyPress press;
        press.Parse(L"193 \\a b.lnk*\\c d.lnk");
        press.Parse(L"193 3*9");
    }
    EXPECT_EQ(LiveBlocks(), before);
}
