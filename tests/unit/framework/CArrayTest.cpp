// CArray: growth, access and removal, under the names of its instantiations.
#include "framework/CArray.h"
#include "framework/CStrList.h"
#include "framework/CVireoApp.h"
#include "pages/tasks/STaskInfo.h"
#include "startmenu/SAppsList.h"
#include "tests/support/Fatal.h"
#include "tests/support/TestHeap.h"

static void Fill(CArray<int>& array, int n)
{
    for (int i = 0; i < n; i++) {
        array.Append(i);
    }
}

TEST(CArrayTest, GrowsByItsStep)
{
    CArray<int> array;
    EXPECT_EQ(array.Capacity(), 16u);
    EXPECT_EQ(array.Count(), 0u);
    Fill(array, 16);
    EXPECT_EQ(array.Capacity(), 16u);
    array.Append(16);
    EXPECT_EQ(array.Capacity(), 32u);
    Fill(array, 16);
    EXPECT_EQ(array.Capacity(), 48u);
    EXPECT_EQ(array.Count(), 33u);
    EXPECT_EQ(array.At(16), 16);
    EXPECT_EQ(array.At(32), 15);
}

TEST(CArrayTest, AnInitialSizeIsTheStepToo)
{
    CArray<int> array(8);
    EXPECT_EQ(array.Capacity(), 8u);
    Fill(array, 9);
    EXPECT_EQ(array.Capacity(), 16u);
    EXPECT_FATAL(CArray<int>(0), L"CArray<int>::CArray", L"Invalid value");
}

TEST(CArrayTest, AtGivesTheSlot)
{
    CArray<int> array;
    Fill(array, 3);
    array.At(1) = 7;
    EXPECT_EQ(array.At(1), 7);
    const CArray<int>& constant = array;
    EXPECT_EQ(constant.At(2), 2);
    EXPECT_FATAL(array.At(3), L"CArray<int>::At", L"Out of range");
    EXPECT_FATAL(constant.At(0xFFFFFFFF), L"CArray<int>::At", L"Out of range");
}

TEST(CArrayTest, DeleteMovesTheTailDown)
{
    CArray<int> array;
    Fill(array, 5);
    array.Delete(1, 2);
    ASSERT_EQ(array.Count(), 3u);
    EXPECT_EQ(array.At(0), 0);
    EXPECT_EQ(array.At(1), 3);
    EXPECT_EQ(array.At(2), 4);
    array.Delete(0, 0);
    array.Delete(3, 0);
    EXPECT_EQ(array.Count(), 3u);
    array.Delete(0, 3);
    EXPECT_EQ(array.Count(), 0u);
    array.Delete(0, 0);
    EXPECT_EQ(array.Count(), 0u);
}

TEST(CArrayTest, DeleteChecksItsRange)
{
    CArray<int> array;
    Fill(array, 3);
    EXPECT_FATAL(array.Delete(2, 2), L"CArray<int>::Delete", L"Out of range");
    EXPECT_FATAL(array.Delete(4, 0), L"CArray<int>::Delete", L"Out of range");
    EXPECT_FATAL(array.Delete(2, 0xFFFFFFFF), L"CArray<int>::Delete", L"Out of range");
    CArray<int> single;
    single.Append(1);
    EXPECT_FATAL(single.Delete(0, 2), L"CArray<int>::Delete", L"Out of range");
}

TEST(CArrayTest, DeleteAlwaysEmptiesAnArrayOfOne)
{
    const struct
    {
        uint32_t index;
        uint32_t n;
    } calls[] = {{0, 1}, {0, 0}, {1, 0}};
    for (const auto& call : calls) {
        CArray<int> array;
        array.Append(1);
        array.Delete(call.index, call.n);
        EXPECT_EQ(array.Count(), 0u) << call.index << ' ' << call.n;
    }
}

TEST(CArrayTest, AnItemOfItsOwnCanBeAppended)
{
    CArray<int> array(1);
    array.Append(5);
    array.Append(array.At(0));
    EXPECT_EQ(array.At(1), 5);
}

TEST(CArrayTest, TheDestructorFreesTheBlockOnly)
{
    const size_t before = LiveBlocks();
    CStr* const text = new CStr(L"abc");
    CArray<CStr*>* const array = new CArray<CStr*>;
    array->Append(text);
    delete array;
    EXPECT_STREQ(L"abc", *text);
    delete text;
    EXPECT_EQ(LiveBlocks(), before);
}

TEST(CArrayTest, AnAllocationThatFailsIsFatal)
{
    CArray<int> array(1);
    array.Append(1);
    EXPECT_FATAL(
        {
            const AllocationFailure none(0);
            array.Append(2);
        },
        L"CArray<int>::Append", L"Not enough memory");
    EXPECT_FATAL(
        {
            const AllocationFailure none(0);
            CArray<int> fails;
        },
        L"CArray<int>::CArray", L"Not enough memory");
    EXPECT_FATAL(CArray<int>(0xFFFFFFFF), L"CArray<int>::CArray", L"Not enough memory");
}

template <typename T>
static void ExpectNames(const std::wstring& name)
{
    EXPECT_EQ(name + L"::CArray", ArrayNames<T>::construct);
    EXPECT_EQ(name + L"::At", ArrayNames<T>::at);
    EXPECT_EQ(name + L"::Append", ArrayNames<T>::append);
    EXPECT_EQ(name + L"::Delete", ArrayNames<T>::remove);
}

TEST(CArrayTest, EachInstantiationReportsUnderItsOwnName)
{
    ExpectNames<int>(L"CArray<int>");
    ExpectNames<CStr*>(L"CArray<class CStr *>");
    ExpectNames<CVireoView*>(L"CArray<class CVireoView *>");
    ExpectNames<CVireoDialog*>(L"CArray<class CVireoDialog *>");
    ExpectNames<SAppsList*>(L"CArray<struct SAppsList *>");
    ExpectNames<STaskInfo*>(L"CArray<struct STaskInfo *>");
    CArray<CStr*> array;
    EXPECT_FATAL(array.At(0), L"CArray<class CStr *>::At", L"Out of range");
}
