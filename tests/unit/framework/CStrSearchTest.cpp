// CStr: comparing, finding and copies of parts.
#include "framework/CStr.h"
#include "tests/support/Fatal.h"

#include <memory>

TEST(CStrSearchTest, CompareNoCaseOrdersWithoutCase)
{
    const CStr text(L"Menu_Worker");
    EXPECT_EQ(text.CompareNoCase(L"MENU_worker"), 0);
    EXPECT_LT(text.CompareNoCase(L"menu_workes"), 0);
    EXPECT_GT(text.CompareNoCase(L"MENU_WORK"), 0);
    EXPECT_GT(text.CompareNoCase(nullptr), 0);
    EXPECT_EQ(CStr(L"\x00C9").CompareNoCase(L"\x00E9"), 0);
}

TEST(CStrSearchTest, FindGivesTheFirstOccurrenceAtOrAfterTheStart)
{
    const CStr text(L"abcabc");
    EXPECT_EQ(text.Find(L"bc", 0), 1);
    EXPECT_EQ(text.Find(L"bc", 1), 1);
    EXPECT_EQ(text.Find(L"bc", 2), 4);
    EXPECT_EQ(text.Find(L"bc", 5), -1);
    EXPECT_EQ(text.Find(L"bc", 6), -1);
    EXPECT_EQ(text.Find(L"BC", 0), -1);
    EXPECT_EQ(text.Find(L"", 3), 3);
    EXPECT_EQ(text.Find(nullptr, 0), -1);
    EXPECT_EQ(text.Find(nullptr, 100), -1);
    EXPECT_FATAL(text.Find(L"a", 7), L"CStr::Find", L"Out of range");
}

TEST(CStrSearchTest, ReverseFindLooksFromTheTerminatorDown)
{
    const CStr text(L"abca");
    EXPECT_EQ(text.ReverseFind(L'a'), 3);
    EXPECT_EQ(text.ReverseFind(L'b'), 1);
    EXPECT_EQ(text.ReverseFind(L'x'), -1);
    EXPECT_EQ(text.ReverseFind(0), 4);
    EXPECT_EQ(CStr().ReverseFind(L'a'), -1);
    EXPECT_EQ(CStr().ReverseFind(0), 0);
}

using Block = std::unique_ptr<wchar_t[]>;

TEST(CStrSearchTest, AllocatedPartsAreClamped)
{
    const CStr text(L"abcdef");
    EXPECT_STREQ(L"ab", Block(text.AllocLeft(2)).get());
    EXPECT_STREQ(L"", Block(text.AllocLeft(0)).get());
    EXPECT_STREQ(L"abcdef", Block(text.AllocLeft(0xFFFFFFFF)).get());
    EXPECT_STREQ(L"ef", Block(text.AllocRight(2)).get());
    EXPECT_STREQ(L"", Block(text.AllocRight(0)).get());
    EXPECT_STREQ(L"abcdef", Block(text.AllocRight(7)).get());
    EXPECT_STREQ(L"cd", Block(text.AllocMiddle(2, 2)).get());
    EXPECT_STREQ(L"", Block(text.AllocMiddle(2, 0)).get());
    EXPECT_STREQ(L"f", Block(text.AllocMiddle(5, 0xFFFFFFFF)).get());
    EXPECT_FATAL(text.AllocMiddle(6, 1), L"CStr::AllocMiddle", L"Out of range");
}

TEST(CStrSearchTest, PartsAreDynamicStrings)
{
    CStr text(10);
    text = L"abcdef";
    EXPECT_STREQ(L"ab", text.Left(2));
    EXPECT_STREQ(L"ef", text.Right(2));
    EXPECT_STREQ(L"cd", text.Mid(2, 2));
    EXPECT_EQ(text.Left(2).FixedSize(), 0u);
    EXPECT_EQ(text.Right(2).FixedSize(), 0u);
    EXPECT_EQ(text.Mid(2, 2).FixedSize(), 0u);
    EXPECT_FATAL(text.Mid(6, 1), L"CStr::AllocMiddle", L"Out of range");
}

TEST(CStrSearchTest, DuplicateCopiesAnyText)
{
    const wchar_t source[] = L"abc";
    const Block copy(CStr::Duplicate(source));
    EXPECT_STREQ(L"abc", copy.get());
    EXPECT_NE(copy.get(), source);
    EXPECT_STREQ(L"", Block(CStr::Duplicate(L"")).get());
}
