// How much memory strings take: exactly what their text needs.
#include "framework/CStr.h"
#include "tests/support/TestHeap.h"
#include "tests/unit/framework/strings.h"

#include <gtest/gtest.h>

// In characters, the terminator's place included.
static size_t Places(CStr& text)
{
    return BlockSize(text.Buffer()) / sizeof(wchar_t);
}

TEST(StringMemoryTest, ADynamicStringGrowsExactly)
{
    CStr text;
    EXPECT_EQ(Places(text), 1u);
    text.Append(L"abc");
    EXPECT_EQ(Places(text), 4u);
    text.Append(L'd', 10);
    EXPECT_EQ(Places(text), 14u);
    text.Insert(2, L"xy");
    EXPECT_EQ(Places(text), 16u);
    text = L"ab";
    EXPECT_EQ(Places(text), 3u);
}

TEST(StringMemoryTest, AnEmptiedDynamicStringHasAFreshBlockForTheTerminator)
{
    CStr text(L"some text");
    text.Empty();
    EXPECT_EQ(Places(text), 1u);
    text = L"some text";
    text = static_cast<const wchar_t*>(nullptr);
    EXPECT_EQ(Places(text), 1u);
}

TEST(StringMemoryTest, AFixedStringHasItsCapacityAndATerminator)
{
    CStr text(20);
    text = L"abc";
    EXPECT_EQ(Places(text), 21u);
    text.SetFixedSize(5);
    EXPECT_EQ(Places(text), 6u);
    text.Empty();
    EXPECT_EQ(Places(text), 6u);
}

TEST(StringMemoryTest, ADynamicStringShrinksExactly)
{
    CStr text(L"0123456789");
    text.Delete(2, 3);
    EXPECT_EQ(Places(text), 8u);
    text.Delete(5, 100);
    EXPECT_EQ(Places(text), 6u);
    text.Shrink(1, 2);
    EXPECT_EQ(Places(text), 3u);
    text = L"  ab ";
    text.Trim(L" ");
    EXPECT_EQ(Places(text), 3u);
    text = L"   ";
    text.Trim(L" ");
    EXPECT_EQ(Places(text), 1u);
    text = L"abcdef";
    text.Assign(L"xyz", 2);
    EXPECT_EQ(Places(text), 3u);
}

TEST(StringMemoryTest, FormattedTextAndResourcesTakeWhatTheyNeed)
{
    CStr text(L"some text");
    text.Format(L"%s", L"abcdef");
    EXPECT_EQ(Places(text), 7u);
    text.Format(L"%d", 5);
    EXPECT_EQ(Places(text), 2u);
    text.AppendFormat(L"%d", 67);
    EXPECT_EQ(Places(text), 4u);
    text.LoadStringW(IDS_SHORT);
    EXPECT_EQ(Places(text), 6u);
    text.Format(nullptr);
    EXPECT_EQ(Places(text), 1u);
}
