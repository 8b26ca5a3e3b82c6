// Narrow text to wide text.
#include "framework/NarrowToWide.h"
#include "tests/support/Fatal.h"
#include "tests/support/ImportHook.h"
#include "tests/support/TestHeap.h"

#include <memory>

using Block = std::unique_ptr<wchar_t[]>;

TEST(NarrowToWideTest, GivesANewWideText)
{
    EXPECT_STREQ(L"abc 123", Block(NarrowToWide("abc 123")).get());
}

TEST(NarrowToWideTest, NothingGivesNull)
{
    EXPECT_EQ(NarrowToWide(nullptr), nullptr);
    EXPECT_EQ(NarrowToWide(""), nullptr);
}

static UINT askedPage;
static int callsThatSucceed;

static int WINAPI Convert(UINT page, DWORD, const char*, int, wchar_t* wide, int size)
{
    askedPage = page;
    if (callsThatSucceed-- <= 0) {
        return 0;
    }
    if (size) {
        wcscpy(wide, L"abc");
    }
    return 4;
}

TEST(NarrowToWideTest, UsesTheActiveAnsiCodePage)
{
    const ImportHook hook("MultiByteToWideChar", Convert);
    askedPage = 99;
    callsThatSucceed = 2;
    EXPECT_STREQ(L"abc", Block(NarrowToWide("xyz")).get());
    EXPECT_EQ(askedPage, 0u);
}

TEST(NarrowToWideTest, AFailedConversionGivesNullAndNoLeak)
{
    const ImportHook hook("MultiByteToWideChar", Convert);
    const size_t before = LiveBlocks();
    for (const int successes : {0, 1}) {
        callsThatSucceed = successes;
        EXPECT_EQ(NarrowToWide("xyz"), nullptr);
    }
    EXPECT_EQ(LiveBlocks(), before);
}

TEST(NarrowToWideTest, AnAllocationThatFailsIsFatal)
{
    EXPECT_FATAL(
        {
            const AllocationFailure none(0);
            NarrowToWide("x");
        },
        L"NarrowToWide", L"Not enough memory");
}
