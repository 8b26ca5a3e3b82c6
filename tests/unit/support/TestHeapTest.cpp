// The heap of the tests themselves: what it counts, and what a checked build's does not let pass.
#include "tests/support/TestHeap.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>

// Through volatile, so that the compiler neither sees the faults nor leaves the blocks out.
static char* volatile block;

TEST(TestHeapTest, CountsLiveBlocks)
{
    const size_t before = LiveBlocks();
    const size_t ever = BlocksEver();
    block = new char[10];
    EXPECT_EQ(LiveBlocks(), before + 1);
    delete[] block;
    EXPECT_EQ(LiveBlocks(), before);
    EXPECT_EQ(BlocksEver(), ever + 1);
}

TEST(TestHeapTest, KnowsTheSizeOfABlock)
{
    for (const size_t size : {1u, 15u, 16u, 4096u}) {
        block = new char[size];
        EXPECT_EQ(BlockSize(block), size);
        delete[] block;
    }
}

TEST(TestHeapTest, FailsAfterSoManySuccesses)
{
    char* first = nullptr;
    char* second = nullptr;
    {
        const AllocationFailure one(1);
        first = new char[10];
        second = new char[10];
    }
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(second, nullptr);
    delete[] first;
    block = new char[1];
    EXPECT_NE(block, nullptr);
    delete[] block;
}

#ifdef QV_CHECKED
TEST(TestHeapTest, DoesNotLetFaultsPass)
{
    EXPECT_DEATH(
        {
            block = new char[32];
            block[32] = 1;
        },
        "");
    EXPECT_DEATH(
        {
            block = new char[30];
            block[30] = 1;
            delete[] block;
        },
        "written behind its end");
    EXPECT_DEATH(
        {
            block = new char[32];
            delete[] block;
            block[0] = 1;
        },
        "");
    EXPECT_DEATH(
        {
            block = new char[32];
            delete[] block;
            delete[] block;
        },
        "freed twice");
}
#endif
