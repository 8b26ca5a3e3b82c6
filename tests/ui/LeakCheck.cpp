// Expects a step to leave nothing behind.
#include "tests/ui/LeakCheck.h"

#include "tests/support/ObjectCounts.h"

#include <gtest/gtest.h>

// The system's caches may take or give this many blocks; anything leaked each time is far more.
static constexpr size_t cacheSlack = 40;

void ExpectNothingLeft(int times, const std::function<void()>& step, const std::function<void()>& forget,
                       size_t keptBySystem)
{
    for (int i = 0; i < 10; i++) {
        step();
    }
    forget();
    const ObjectCounts before = ObjectCounts::Now();
    for (int i = 0; i < times; i++) {
        step();
        forget();
    }
    const ObjectCounts after = ObjectCounts::Now();
    EXPECT_TRUE(after.SameObjects(before))
        << testing::PrintToString(before) << "\nafter: " << testing::PrintToString(after);
    EXPECT_EQ(after.programBlocks, before.programBlocks);
    EXPECT_LE(after.heapBlocks, before.heapBlocks + cacheSlack + keptBySystem * static_cast<size_t>(times));
}
