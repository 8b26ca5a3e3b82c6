// Heap walks by the tool-help substitute: scripted, of the own process and of another one.
#include "platform/ce.h"
#include "tests/support/ChildProgram.h"
#include "tests/support/OwnProfile.h"

#include <gtest/gtest.h>

namespace {

// The sum of all blocks of all heaps; the number of heaps whose first block was refused.
struct Walk
{
    unsigned long long sum = 0;
    int heaps = 0;
    int refused = 0;
    bool taken = false;
};

} // namespace

static Walk WalkProcess(DWORD process)
{
    Walk walk;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPHEAPLIST, process);
    walk.taken = snapshot != INVALID_HANDLE_VALUE;
    if (!walk.taken) {
        return walk;
    }
    HEAPLIST32 list = {};
    list.dwSize = sizeof list;
    for (BOOL more = Heap32ListFirst(snapshot, &list); more; more = Heap32ListNext(snapshot, &list)) {
        ++walk.heaps;
        EXPECT_EQ(list.th32ProcessID, process);
        HEAPENTRY32 entry = {};
        entry.dwSize = sizeof entry;
        BOOL block = Heap32First(snapshot, &entry, list.th32ProcessID, list.th32HeapID);
        walk.refused += block ? 0 : 1;
        for (; block; block = Heap32Next(snapshot, &entry)) {
            walk.sum += entry.dwBlockSize;
        }
    }
    EXPECT_TRUE(CloseToolhelp32Snapshot(snapshot));
    return walk;
}

class PlatformHeapsTest : public testing::Test
{
  protected:
    static void SetUpTestSuite() { UseOwnProfile("[heap]\ncmd.exe = 1000, 24 | | 4294967295\n"); }
};

TEST_F(PlatformHeapsTest, AScriptedProcessHasTheBlocksOfItsScript)
{
    if (!IsOnlySuite()) {
        GTEST_SKIP() << "another suite may have read the profile already; run this one alone";
    }
    const ChildProgram child(L"C:\\windows\\system32\\cmd.exe");
    const Walk walk = WalkProcess(child.Id());
    EXPECT_TRUE(walk.taken);
    EXPECT_EQ(walk.heaps, 3);
    EXPECT_EQ(walk.refused, 1);
    EXPECT_EQ(walk.sum, 1024ull + 4294967295ull);
}

TEST_F(PlatformHeapsTest, TheOwnHeapsGrowByWhatIsAllocated)
{
    constexpr size_t size = 300000;
    const Walk before = WalkProcess(GetCurrentProcessId());
    void* block = HeapAlloc(GetProcessHeap(), 0, size);
    ASSERT_NE(block, nullptr);
    const Walk during = WalkProcess(GetCurrentProcessId());
    HeapFree(GetProcessHeap(), 0, block);
    EXPECT_TRUE(before.taken);
    EXPECT_GE(before.heaps, 1);
    EXPECT_GE(during.sum, size);
}

TEST_F(PlatformHeapsTest, AnotherProcessIsOneBlock)
{
    ChildProgram child(L"C:\\windows\\system32\\winver.exe");
    const Walk walk = WalkProcess(child.Id());
    EXPECT_TRUE(walk.taken);
    EXPECT_EQ(walk.heaps, 1);
    EXPECT_EQ(walk.refused, 0);
}

TEST_F(PlatformHeapsTest, AProcessThatHasGoneHasNoSnapshot)
{
    EXPECT_FALSE(WalkProcess(0x7FFFFFF0).taken);
}

TEST_F(PlatformHeapsTest, ARecordWithoutItsSizeOrAnUnknownHeapIsRefused)
{
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPHEAPLIST, GetCurrentProcessId());
    ASSERT_NE(snapshot, INVALID_HANDLE_VALUE);
    HEAPLIST32 list = {};
    EXPECT_FALSE(Heap32ListFirst(snapshot, &list));
    HEAPENTRY32 entry = {};
    EXPECT_FALSE(Heap32First(snapshot, &entry, GetCurrentProcessId(), 1));
    entry.dwSize = sizeof entry;
    EXPECT_FALSE(Heap32First(snapshot, &entry, GetCurrentProcessId(), 0));
    EXPECT_FALSE(Heap32First(snapshot, &entry, GetCurrentProcessId(), 1000));
    EXPECT_FALSE(Heap32First(snapshot, &entry, GetCurrentProcessId() + 4, 1));
    EXPECT_TRUE(CloseToolhelp32Snapshot(snapshot));
}

TEST_F(PlatformHeapsTest, TheHeapBehindTheLastIsRefused)
{
    const ChildProgram child(L"C:\\windows\\system32\\winver.exe");
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPHEAPLIST, child.Id());
    ASSERT_NE(snapshot, INVALID_HANDLE_VALUE);
    HEAPENTRY32 entry = {};
    entry.dwSize = sizeof entry;
    EXPECT_TRUE(Heap32First(snapshot, &entry, child.Id(), 1));
    EXPECT_FALSE(Heap32First(snapshot, &entry, child.Id(), 2));
    EXPECT_TRUE(CloseToolhelp32Snapshot(snapshot));
}

TEST_F(PlatformHeapsTest, AWalkCanBeginAgain)
{
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPHEAPLIST, GetCurrentProcessId());
    ASSERT_NE(snapshot, INVALID_HANDLE_VALUE);
    HEAPLIST32 list = {};
    list.dwSize = sizeof list;
    ASSERT_TRUE(Heap32ListFirst(snapshot, &list));
    const auto firstHeap = list.th32HeapID;
    HEAPENTRY32 entry = {};
    entry.dwSize = sizeof entry;
    ASSERT_TRUE(Heap32First(snapshot, &entry, list.th32ProcessID, firstHeap));
    const DWORD firstBlock = entry.dwBlockSize;
    while (Heap32Next(snapshot, &entry)) {
    }
    EXPECT_TRUE(Heap32First(snapshot, &entry, list.th32ProcessID, firstHeap));
    EXPECT_EQ(entry.dwBlockSize, firstBlock);
    while (Heap32ListNext(snapshot, &list)) {
    }
    ASSERT_TRUE(Heap32ListFirst(snapshot, &list));
    EXPECT_EQ(list.th32HeapID, firstHeap);
    EXPECT_TRUE(CloseToolhelp32Snapshot(snapshot));
}
