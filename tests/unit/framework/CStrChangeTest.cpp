// CStr: appending, inserting, deleting and trimming.
#include "framework/CStr.h"
#include "tests/support/Fatal.h"

TEST(CStrChangeTest, AppendGrowsADynamicString)
{
    CStr text;
    text.Append(L"abc");
    text.Append(L"");
    text.Append(static_cast<const wchar_t*>(nullptr));
    text.Append(L"de");
    EXPECT_STREQ(L"abcde", text);
}

TEST(CStrChangeTest, AppendingNothingKeepsTheBuffer)
{
    CStr text(L"abc");
    const wchar_t* const before = text.Buffer();
    text.Append(L"");
    text.Append(L'x', 0);
    text.Insert(1, L"");
    text.Insert(1, nullptr);
    text.Delete(0, 0);
    text.Trim(nullptr);
    EXPECT_EQ(text.Buffer(), before);
    EXPECT_STREQ(L"abc", text);
}

TEST(CStrChangeTest, AFixedStringIsAppendedToUpToItsCapacity)
{
    CStr text(5);
    const wchar_t* const before = text.Buffer();
    text.Append(L"abc");
    text.Append(L"de");
    EXPECT_STREQ(L"abcde", text);
    text.Append(L"");
    EXPECT_EQ(text.Buffer(), before);
    EXPECT_FATAL(text.Append(L"f"), L"CStr::Append", L"Buffer is too small");
    EXPECT_FATAL(text.Append(L'f', 1), L"CStr::Append", L"Buffer is too small");
    EXPECT_FATAL(text.Append(L'f', 0xFFFFFFFF), L"CStr::Append", L"Buffer is too small");
}

TEST(CStrChangeTest, AppendRepeatsACharacter)
{
    CStr text(L"a");
    text.Append(L'b', 0);
    text.Append(L'c', 1);
    text.Append(L'd', 3);
    EXPECT_STREQ(L"acddd", text);
    CStr fixed(4);
    fixed.Append(L'x', 4);
    EXPECT_STREQ(L"xxxx", fixed);
}

TEST(CStrChangeTest, AStringCanBeAppendedToItself)
{
    CStr dynamic(L"abc");
    dynamic.Append(dynamic);
    EXPECT_STREQ(L"abcabc", dynamic);
    dynamic.Append(dynamic.Buffer() + 4);
    EXPECT_STREQ(L"abcabcbc", dynamic);
    CStr fixed(6);
    fixed = L"abc";
    fixed.Append(fixed);
    EXPECT_STREQ(L"abcabc", fixed);
}

TEST(CStrChangeTest, EmptyKeepsAFixedBuffer)
{
    CStr fixed(5);
    fixed = L"abc";
    const wchar_t* const before = fixed.Buffer();
    fixed.Empty();
    EXPECT_STREQ(L"", fixed);
    EXPECT_EQ(fixed.Buffer(), before);
    CStr dynamic(L"abc");
    dynamic.Empty();
    EXPECT_STREQ(L"", dynamic);
    EXPECT_EQ(dynamic.FixedSize(), 0u);
}

TEST(CStrChangeTest, InsertTakesAPositionBehindTheEndForTheEnd)
{
    CStr text(L"ab");
    text.Insert(0, L"1");
    EXPECT_STREQ(L"1ab", text);
    text.Insert(2, L"23");
    EXPECT_STREQ(L"1a23b", text);
    text.Insert(1000, L"!");
    EXPECT_STREQ(L"1a23b!", text);
    text.Insert(0xFFFFFFFF, L"?");
    EXPECT_STREQ(L"1a23b!?", text);
}

TEST(CStrChangeTest, AFixedStringIsInsertedIntoUpToItsCapacity)
{
    CStr text(6);
    const wchar_t* const before = text.Buffer();
    text = L"abc";
    text.Insert(1, L"xyz");
    EXPECT_STREQ(L"axyzbc", text);
    EXPECT_EQ(text.Buffer(), before);
    EXPECT_FATAL(text.Insert(0, L"1"), L"CStr::Insert", L"Buffer is too small");
    text = L"ab";
    text.Insert(1, L"x");
    EXPECT_STREQ(L"axb", text) << "what was behind the text stays behind it";
}

TEST(CStrChangeTest, AStringCanBeInsertedIntoItself)
{
    CStr dynamic(L"abc");
    dynamic.Insert(1, dynamic);
    EXPECT_STREQ(L"aabcbc", dynamic);
    CStr fixed(5);
    fixed = L"abc";
    fixed.Insert(0, fixed.Buffer() + 1);
    EXPECT_STREQ(L"bcabc", fixed);
}

TEST(CStrChangeTest, DeleteClampsTheCountAndChecksThePosition)
{
    CStr text(L"abcdef");
    text.Delete(1, 2);
    EXPECT_STREQ(L"adef", text);
    text.Delete(2, 0xFFFFFFFF);
    EXPECT_STREQ(L"ad", text);
    text.Delete(100, 0);
    EXPECT_STREQ(L"ad", text);
    EXPECT_FATAL(text.Delete(2, 1), L"CStr::Delete", L"Out of range");
    text.Delete(0, 2);
    EXPECT_STREQ(L"", text);
    EXPECT_FATAL(text.Delete(0, 1), L"CStr::Delete", L"Out of range");

    CStr fixed(6);
    fixed = L"abcdef";
    const wchar_t* const before = fixed.Buffer();
    fixed.Delete(0, 1);
    EXPECT_STREQ(L"bcdef", fixed);
    EXPECT_EQ(fixed.Buffer(), before);
}

TEST(CStrChangeTest, ShrinkCutsBothEnds)
{
    CStr text(L"abcdef");
    text.Shrink(1, 2);
    EXPECT_STREQ(L"bcd", text);
    text.Shrink(0, 0);
    EXPECT_STREQ(L"bcd", text);
    EXPECT_FATAL(text.Shrink(2, 2), L"CStr::Shrink", L"Out of range");
    EXPECT_FATAL(text.Shrink(0xFFFFFFFF, 1), L"CStr::Shrink", L"Out of range");
    text.Shrink(1, 2);
    EXPECT_STREQ(L"", text);
    CStr fixed(4);
    fixed = L"abcd";
    const wchar_t* const before = fixed.Buffer();
    fixed.Shrink(1, 1);
    EXPECT_STREQ(L"bc", fixed);
    EXPECT_EQ(fixed.Buffer(), before);
}

TEST(CStrChangeTest, TrimTakesTheSetOffBothEnds)
{
    const struct
    {
        const wchar_t* before;
        const wchar_t* set;
        const wchar_t* after;
    } cases[] = {{L"   ", L" ", L""},          {L"  a ", L" ", L"a"}, {L"", L" ", L""},
                 {L"abc", L" ", L"abc"},       {L"abc", L"", L"abc"}, {L" \ta b\r\n", L" \t\r\n", L"a b"},
                 {L"xxaxbxx", L"x", L"axb"},   {L"a", L"a", L""},     {L"aa", L"a", L""},
                 {L"\"path\"", L"\"", L"path"}};
    for (const auto& each : cases) {
        CStr text(each.before);
        text.Trim(each.set);
        EXPECT_STREQ(each.after, text) << "from " << each.before;
        CStr fixed(20);
        fixed = each.before;
        fixed.Trim(each.set);
        EXPECT_STREQ(each.after, fixed) << "from " << each.before;
    }
}

TEST(CStrChangeTest, MakeLowerKnowsMoreThanAscii)
{
    CStr text(L"ABC xyz \x00C9 \x041F 1");
    text.MakeLower();
    EXPECT_STREQ(L"abc xyz \x00E9 \x043F 1", text);
}
