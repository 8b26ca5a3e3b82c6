// Which keys of the PC's keyboard press the handheld's own.
#include "platform/pc/common/HandheldKeys.h"

#include <gtest/gtest.h>

using handheld::HandheldKeyOf;
using handheld::KeyLine;

static constexpr bool pocketPc = false;
static constexpr bool smartphone = true;

TEST(HandheldKeysTest, F5ToF8AreTheButtonsOfEveryHandheld)
{
    for (bool kind : {pocketPc, smartphone}) {
        EXPECT_EQ(HandheldKeyOf({VK_F4, false}, kind), 0);
        EXPECT_EQ(HandheldKeyOf({VK_F5, false}, kind), 0xC1);
        EXPECT_EQ(HandheldKeyOf({VK_F6, false}, kind), 0xC2);
        EXPECT_EQ(HandheldKeyOf({VK_F7, false}, kind), 0xC3);
        EXPECT_EQ(HandheldKeyOf({VK_F8, false}, kind), 0xC4);
        EXPECT_EQ(HandheldKeyOf({VK_F9, false}, kind), 0);
    }
}

TEST(HandheldKeysTest, HomeAndEndAreASmartphones)
{
    EXPECT_EQ(HandheldKeyOf({VK_HOME, true}, smartphone), 0x5B);
    EXPECT_EQ(HandheldKeyOf({VK_END, true}, smartphone), 0x73);
    EXPECT_EQ(HandheldKeyOf({VK_HOME, true}, pocketPc), 0);
    EXPECT_EQ(HandheldKeyOf({VK_END, true}, pocketPc), 0);
}

TEST(HandheldKeysTest, TheNumberPadMovesInListsOnASmartphoneToo)
{
    EXPECT_EQ(HandheldKeyOf({VK_HOME, false}, smartphone), 0);
    EXPECT_EQ(HandheldKeyOf({VK_END, false}, smartphone), 0);
}

TEST(HandheldKeysTest, TheOtherKeysAreThemselves)
{
    for (DWORD key : {VK_F1, VK_F2, VK_ESCAPE, VK_RETURN, VK_UP, VK_DOWN, VK_LEFT, VK_RIGHT, VK_LWIN,
                      VK_DELETE, VK_F3, VK_F9, VK_F10, VK_F11}) {
        for (bool extended : {false, true}) {
            EXPECT_EQ(HandheldKeyOf({key, extended}, smartphone), 0) << key;
        }
    }
}

static std::wstring MeaningOf(const std::vector<KeyLine>& lines, const wchar_t* pcKey)
{
    for (const KeyLine& line : lines) {
        if (line.pcKey == pcKey) {
            return line.meaning;
        }
    }
    return L"not listed";
}

TEST(HandheldKeysTest, TheListNamesEveryKeyOfItsHandheld)
{
    for (bool kind : {pocketPc, smartphone}) {
        const std::vector<KeyLine> lines = handheld::ListKeys(kind);
        EXPECT_EQ(MeaningOf(lines, L"F1, F2"), L"left and right soft key");
        EXPECT_EQ(MeaningOf(lines, L"Escape"), L"Back");
        EXPECT_EQ(MeaningOf(lines, L"F5 to F8"), L"hardware buttons 1 to 4, also held");
        EXPECT_EQ(MeaningOf(lines, L"F12"), L"this list");
        EXPECT_EQ(MeaningOf(lines, L"Home"), kind == smartphone ? L"Home, also held" : L"not listed");
        EXPECT_EQ(MeaningOf(lines, L"F1, then *"),
                  kind == smartphone ? L"unlock locked keys" : L"not listed");
        EXPECT_EQ(MeaningOf(lines, L"F1, then Enter"),
                  kind == smartphone ? L"not listed" : L"unlock locked keys");
    }
}
