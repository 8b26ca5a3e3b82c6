// CStr: construction, assignment and access.
#include "framework/CStr.h"
#include "tests/support/Fatal.h"
#include "tests/support/TestHeap.h"

#include <string>

TEST(CStrTest, TheDefaultIsEmptyAndDynamic)
{
    const CStr text;
    ASSERT_NE(text.Buffer(), nullptr);
    EXPECT_STREQ(L"", text);
    EXPECT_EQ(text.Length(), 0u);
    EXPECT_EQ(text.FixedSize(), 0u);
    EXPECT_EQ(text.BufferSize(), 0u);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(CStr(0u).FixedSize(), 0u);
    EXPECT_STREQ(L"", CStr(0u));
}

TEST(CStrTest, ASizeGivesAnEmptyFixedStringWithOnePlaceMore)
{
    CStr text(5);
    EXPECT_STREQ(L"", text);
    EXPECT_EQ(text.FixedSize(), 5u);
    EXPECT_EQ(text.BufferSize(), 5u);
    for (uint32_t i = 0; i <= 5; i++) {
        text.Buffer()[i] = i < 5 ? L'x' : 0; // a checked build dies if the buffer is shorter
    }
    EXPECT_EQ(text.Length(), 5u);
}

TEST(CStrTest, ATextIsCopiedAndNullIsEmpty)
{
    wchar_t source[] = L"abc";
    const CStr text(source);
    source[0] = L'x';
    EXPECT_STREQ(L"abc", text);
    EXPECT_EQ(text.FixedSize(), 0u);
    EXPECT_EQ(text.BufferSize(), 3u);
    EXPECT_FALSE(text.IsEmpty());
    EXPECT_STREQ(L"", CStr(static_cast<const wchar_t*>(nullptr)));
}

TEST(CStrTest, ACopyIsDynamicWhateverTheSourceIs)
{
    CStr fixed(10);
    fixed = L"abc";
    const CStr copy(fixed);
    EXPECT_STREQ(L"abc", copy);
    EXPECT_EQ(copy.FixedSize(), 0u);
    EXPECT_NE(copy.Buffer(), fixed.Buffer());
}

TEST(CStrTest, AssignmentTakesWideTextStringAndNarrowText)
{
    CStr text;
    text = L"wide";
    EXPECT_STREQ(L"wide", text);
    const CStr other(L"other");
    text = other;
    EXPECT_STREQ(L"other", text);
    text = "narrow";
    EXPECT_STREQ(L"narrow", text);
}

TEST(CStrTest, AssigningItselfChangesNothing)
{
    CStr dynamic(L"abc");
    CStr fixed(5);
    fixed = L"abc";
    for (CStr* const text : {&dynamic, &fixed}) {
        const wchar_t* const before = text->Buffer();
        *text = *text;
        EXPECT_EQ(text->Buffer(), before);
        *text = text->Buffer();
        EXPECT_EQ(text->Buffer(), before);
        EXPECT_STREQ(L"abc", *text);
    }
}

TEST(CStrTest, APartOfItselfCanBeAssigned)
{
    CStr dynamic(L"abcdef");
    dynamic = dynamic.Buffer() + 2;
    EXPECT_STREQ(L"cdef", dynamic);
    CStr fixed(6);
    fixed = L"abcdef";
    fixed = fixed.Buffer() + 1;
    EXPECT_STREQ(L"bcdef", fixed);
}

TEST(CStrTest, NullEmpties)
{
    CStr fixed(5);
    fixed = L"abc";
    const wchar_t* const before = fixed.Buffer();
    fixed = static_cast<const wchar_t*>(nullptr);
    EXPECT_STREQ(L"", fixed);
    EXPECT_EQ(fixed.Buffer(), before);
    fixed = L"abc";
    fixed = static_cast<const char*>(nullptr);
    EXPECT_STREQ(L"", fixed);
    CStr dynamic(L"abc");
    dynamic = static_cast<const wchar_t*>(nullptr);
    EXPECT_STREQ(L"", dynamic);
    ASSERT_NE(dynamic.Buffer(), nullptr);
}

TEST(CStrTest, AFixedStringTakesItsCapacityAndNoMore)
{
    CStr text(5);
    const wchar_t* const before = text.Buffer();
    text = L"abcde";
    EXPECT_STREQ(L"abcde", text);
    EXPECT_EQ(text.Buffer(), before);
    const CStr longer(L"abcdef");
    EXPECT_FATAL(text = L"abcdef", L"CStr::operator =", L"Buffer is too small");
    EXPECT_FATAL(text = longer, L"CStr::operator =", L"Buffer is too small");
    EXPECT_FATAL(text = "abcdef", L"CStr::operator =", L"Buffer is too small");
}

TEST(CStrTest, NarrowTextWithoutAConversionIsFatal)
{
    CStr text;
    EXPECT_FATAL(text = "", L"CStr::operator =", L"Error");
}

TEST(CStrTest, AssignCopiesAtMostSoManyCharacters)
{
    CStr text;
    text.Assign(L"abcdef", 3);
    EXPECT_STREQ(L"abc", text);
    text.Assign(L"abc", 100);
    EXPECT_STREQ(L"abc", text);
    text.Assign(L"abcdef", 0);
    EXPECT_STREQ(L"abcdef", text);
    const wchar_t unterminated[] = {L'x', L'y'};
    text.Assign(unterminated, 2);
    EXPECT_STREQ(L"xy", text);
}

TEST(CStrTest, AssignOnAFixedString)
{
    CStr text(3);
    const wchar_t* const before = text.Buffer();
    text.Assign(L"abcdef", 3);
    EXPECT_STREQ(L"abc", text);
    text.Assign(L"xyz", 0);
    EXPECT_STREQ(L"", text);
    text.Assign(L"ab", 100);
    EXPECT_STREQ(L"ab", text);
    EXPECT_EQ(text.Buffer(), before);
    EXPECT_FATAL(text.Assign(L"abcdef", 4), L"CStr::Assign", L"Buffer is too small");
}

TEST(CStrTest, AssignFixedCutsToTheCapacity)
{
    CStr text(3);
    text.AssignFixed(L"abcdef");
    EXPECT_STREQ(L"abc", text);
    text.AssignFixed(L"x");
    EXPECT_STREQ(L"x", text);
    CStr dynamic;
    dynamic.AssignFixed(L"whole");
    EXPECT_STREQ(L"whole", dynamic);
}

TEST(CStrTest, SetFixedSizeKeepsWhatFits)
{
    CStr text(L"abcdef");
    text.SetFixedSize(3);
    EXPECT_STREQ(L"abc", text);
    EXPECT_EQ(text.FixedSize(), 3u);
    text.SetFixedSize(10);
    EXPECT_STREQ(L"abc", text);
    text = L"0123456789";
    EXPECT_STREQ(L"0123456789", text);
}

TEST(CStrTest, SetFixedSizeOfTheSameOrZeroKeepsTheBuffer)
{
    CStr text(5);
    text = L"abc";
    const wchar_t* const before = text.Buffer();
    text.SetFixedSize(5);
    EXPECT_EQ(text.Buffer(), before);
    EXPECT_EQ(text.FixedSize(), 5u);
    text.SetFixedSize(0);
    EXPECT_EQ(text.Buffer(), before);
    EXPECT_EQ(text.FixedSize(), 0u);
    EXPECT_STREQ(L"abc", text);
    text = L"longer than five";
    EXPECT_STREQ(L"longer than five", text);
}

TEST(CStrTest, AtReachesTheTerminatorOfADynamicString)
{
    CStr text(L"ab");
    *text.At(0) = L'x';
    EXPECT_STREQ(L"xb", text);
    EXPECT_EQ(text.At(2), text.Buffer() + 2);
    EXPECT_EQ(*text.At(2), 0);
    EXPECT_FATAL(text.At(3), L"CStr::At", L"Out of range");
    const CStr& constant = text;
    EXPECT_EQ(constant.At(2), text.Buffer() + 2);
    EXPECT_FATAL(constant.At(0xFFFFFFFF), L"CStr::At", L"Out of range");
}

TEST(CStrTest, AtReachesTheWholeBufferOfAFixedString)
{
    CStr text(5);
    text = L"ab";
    EXPECT_EQ(text.At(5), text.Buffer() + 5);
    EXPECT_FATAL(text.At(6), L"CStr::At", L"Out of range");
}

TEST(CStrTest, EveryBlockIsFreed)
{
    const size_t before = LiveBlocks();
    {
        CStr text(L"abc");
        CStr other(7);
        other = text;
        text = other;
        text.SetFixedSize(20);
        text.Insert(1, L"xyz");
        text.SetFixedSize(0);
        text.Append(L'c', 100);
        text.Format(L"%s", other.Buffer());
        text.Trim(L"a");
        CStr large(300); // more than is formatted without a block
        large.Format(L"%s", text.Buffer());
        other = "abc";
        const CStr part = text.Mid(0, 1);
        delete[] text.AllocLeft(2);
    }
    EXPECT_EQ(LiveBlocks(), before);
}

TEST(CStrTest, AnAllocationThatFailsIsFatal)
{
    CStr text(L"abc");
    const CStr other(L"defg");
    EXPECT_FATAL(
        {
            const AllocationFailure none(0);
            const CStr fails(L"x");
        },
        L"CStr::CStr", L"Not enough memory");
    EXPECT_FATAL(
        {
            const AllocationFailure none(0);
            text = other;
        },
        L"CStr::operator =", L"Not enough memory");
    EXPECT_FATAL(
        {
            const AllocationFailure none(0);
            text.Assign(L"x", 0);
        },
        L"CStr::Assign", L"Not enough memory");
    EXPECT_FATAL(
        {
            const AllocationFailure none(0);
            text.Append(L"x");
        },
        L"CStr::Append", L"Not enough memory");
    EXPECT_FATAL(
        {
            const AllocationFailure none(0);
            text.Append(L'x', 2);
        },
        L"CStr::Append", L"Not enough memory");
    EXPECT_FATAL(
        {
            const AllocationFailure none(0);
            text.Insert(0, L"x");
        },
        L"CStr::Insert", L"Not enough memory");
    EXPECT_FATAL(
        {
            const AllocationFailure none(0);
            text.Empty();
        },
        L"CStr::Empty", L"Not enough memory");
    EXPECT_FATAL(
        {
            const AllocationFailure none(0);
            text.Format(L"x");
        },
        L"CStr::Format", L"Not enough memory");
    EXPECT_FATAL(
        {
            const AllocationFailure none(0);
            text.SetFixedSize(2);
        },
        L"CStr::SetFixedSize", L"Not enough memory");
    EXPECT_FATAL(
        {
            const AllocationFailure none(0);
            CStr::Duplicate(L"x");
        },
        L"CStr::Duplicate", L"Not enough memory");
}

TEST(CStrTest, ACapacityThatOverflowsIsNotEnoughMemory)
{
    EXPECT_FATAL(CStr text(0xFFFFFFFFu), L"CStr::CStr", L"Not enough memory");
    EXPECT_FATAL(CStr text(0x7FFFFFFFu), L"CStr::CStr", L"Not enough memory");
    CStr text(L"abc");
    EXPECT_FATAL(text.Append(L'x', 0xFFFFFFFF), L"CStr::Append", L"Not enough memory");
    EXPECT_FATAL(text.SetFixedSize(0xFFFFFFFF), L"CStr::SetFixedSize", L"Not enough memory");
}
