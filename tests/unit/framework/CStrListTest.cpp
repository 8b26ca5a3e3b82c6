// The list of strings that owns them.
#include "framework/CStrList.h"
#include "tests/support/Fatal.h"
#include "tests/support/TestHeap.h"

TEST(CStrListTest, KeepsCopiesInOrder)
{
    CStrList list;
    EXPECT_EQ(list.Count(), 0u);
    wchar_t text[] = L"first";
    list.Append(text);
    text[0] = L'x';
    list.Append(L"second");
    ASSERT_EQ(list.Count(), 2u);
    EXPECT_STREQ(L"first", list.At(0));
    EXPECT_STREQ(L"second", list.At(1));
    EXPECT_FATAL(list.At(2), L"CArray<class CStr *>::At", L"Out of range");
}

TEST(CStrListTest, ClearDeletesTheStrings)
{
    CStrList list;
    const size_t before = LiveBlocks();
    list.Append(L"one");
    list.Append(L"two");
    EXPECT_GT(LiveBlocks(), before);
    list.Clear();
    EXPECT_EQ(list.Count(), 0u);
    EXPECT_EQ(LiveBlocks(), before);
    list.Clear();
    list.Append(L"again");
    EXPECT_STREQ(L"again", list.At(0));
}

TEST(CStrListTest, TheEndFreesEverything)
{
    const size_t before = LiveBlocks();
    {
        CStrList list;
        for (int i = 0; i < 40; i++) {
            list.Append(L"text");
        }
        EXPECT_EQ(list.Count(), 40u);
    }
    EXPECT_EQ(LiveBlocks(), before);
}

TEST(CStrListTest, AnAllocationThatFailsIsFatal)
{
    CStrList list;
    EXPECT_FATAL(
        {
            const AllocationFailure none(0);
            list.Append(L"x");
        },
        L"CStrList::Append", L"Not enough memory");
}
