// How much memory strings take: exactly what their text needs.
#include "framework/CStr.h"

#include <gtest/gtest.h>

#include <malloc.h>

class StringMemoryTest : public testing::Test
{
  protected:
    void SetUp() override
    {
#ifdef QV_CHECKED
        GTEST_SKIP() << "a guarded block ends at its page and has no size of its own";
#endif
    }

    // In characters, the terminator's place included.
    static size_t Places(const CStr& text)
    {
        return _msize(const_cast<wchar_t*>(text.Buffer())) / sizeof(wchar_t);
    }
};

TEST_F(StringMemoryTest, ADynamicStringGrowsExactly)
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

TEST_F(StringMemoryTest, AnEmptiedDynamicStringHasAFreshBlockForTheTerminator)
{
    CStr text(L"some text");
    text.Empty();
    EXPECT_EQ(Places(text), 1u);
    text = L"some text";
    text = static_cast<const wchar_t*>(nullptr);
    EXPECT_EQ(Places(text), 1u);
}

TEST_F(StringMemoryTest, AFixedStringHasItsCapacityAndATerminator)
{
    CStr text(20);
    text = L"abc";
    EXPECT_EQ(Places(text), 21u);
    text.SetFixedSize(5);
    EXPECT_EQ(Places(text), 6u);
    text.Empty();
    EXPECT_EQ(Places(text), 6u);
}
