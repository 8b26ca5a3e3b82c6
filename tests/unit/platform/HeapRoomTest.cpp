// The size of the own heaps as the tool-help substitute tells it.
#include "platform/ce.h"

#include <gtest/gtest.h>

class HeapRoomTest : public testing::Test
{
  protected:
    static unsigned long long SumOfBlocks()
    {
        unsigned long long sum = 0;
        const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPHEAPLIST, GetCurrentProcessId());
        HEAPLIST32 list = {};
        list.dwSize = sizeof list;
        for (BOOL more = Heap32ListFirst(snapshot, &list); more; more = Heap32ListNext(snapshot, &list)) {
            HEAPENTRY32 entry = {};
            entry.dwSize = sizeof entry;
            BOOL block = Heap32First(snapshot, &entry, list.th32ProcessID, list.th32HeapID);
            for (; block; block = Heap32Next(snapshot, &entry)) {
                sum += entry.dwBlockSize;
            }
        }
        EXPECT_TRUE(CloseToolhelp32Snapshot(snapshot));
        return sum;
    }
};

TEST_F(HeapRoomTest, RoomThatIsNotCommittedDoesNotCount)
{
    constexpr SIZE_T reserved = 32 << 20;
    constexpr SIZE_T allocated = 100000;
    const unsigned long long before = SumOfBlocks();
    const HANDLE heap = HeapCreate(0, 0, reserved);
    ASSERT_NE(heap, nullptr);
    ASSERT_NE(HeapAlloc(heap, 0, allocated), nullptr);
    const unsigned long long during = SumOfBlocks();
    HeapDestroy(heap);
    EXPECT_GE(during, before + allocated);
    EXPECT_LT(during, before + reserved / 4);
}
