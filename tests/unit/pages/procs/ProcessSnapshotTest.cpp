// The processes of the system: what is asked, and what the records say.
#include "pages/procs/ProcessSnapshot.h"
#include "tests/support/Fatal.h"
#include "tests/support/ScriptedProcesses.h"
#include "tests/support/Spy.h"
#include "tests/support/TestHeap.h"
#include "tests/unit/ScriptedHeaps.h"
#include "tests/unit/ScriptedIcons.h"

#include <gtest/gtest.h>

#include <optional>

static const uint32_t gibibyte = 0x40000000;

class ProcessSnapshotTest : public testing::Test
{
  protected:
    using Snapshots = std::vector<std::pair<DWORD, DWORD>>;

    ScriptedHeaps heaps;
    ScriptedIcons icons;
    ScriptedProcesses system;
    CRecords<SProcInfo> records{10};

    void AddProcesses(uint32_t count)
    {
        for (uint32_t i = 0; i < count; i++) {
            system.Add(1000 + i, L"p" + std::to_wstring(i) + L".exe");
        }
    }

    // The record of the system's only process.
    const SProcInfo& Only()
    {
        TakeProcessSnapshot(records);
        EXPECT_EQ(records.Count(), 1u);
        return *records.At(0);
    }
};

TEST_F(ProcessSnapshotTest, TheSystemIsAskedOnceForItsProcessesWithoutTheirHeaps)
{
    AddProcesses(3);
    TakeProcessSnapshot(records);
    EXPECT_EQ(system.snapshots, (Snapshots{{0x40000002, 0}}));
    EXPECT_FALSE(system.badRequest);
}

TEST_F(ProcessSnapshotTest, TheSnapshotIsClosedAsOneAndOnce)
{
    AddProcesses(3);
    TakeProcessSnapshot(records);
    EXPECT_EQ(system.open, 0);
    EXPECT_EQ(system.closedAsHandles, 0);
    EXPECT_EQ(heaps.open, 0);
    EXPECT_FALSE(heaps.badRequest);
}

TEST_F(ProcessSnapshotTest, ASystemThatGivesNoSnapshotIsFatal)
{
    system.givesProcesses = false;
    EXPECT_FATAL_AT(TakeProcessSnapshot(records), L"CViewProcs::FillContents", 691,
                    L"CreateToolhelp32Snapshot failed");
}

// Without a report the child ends with another code than the fatal one.
TEST_F(ProcessSnapshotTest, ASnapshotWithoutAProcessIsClosedAsAHandleAndFatal)
{
    const auto fail = [&] {
        const SPY(MessageBoxW) box([&](HWND owner, const wchar_t* text, const wchar_t* caption, UINT type) {
            if (system.open != 0 || system.closedAsHandles != 1) {
                ExitProcess(7);
            }
            return box.Real(owner, text, caption, type);
        });
        TakeProcessSnapshot(records);
    };
    AddProcesses(3);
    system.hasFirstProcess = false;
    EXPECT_FATAL_AT(fail(), L"CViewProcs::FillContents", 702, L"Process32First failed");
}

TEST_F(ProcessSnapshotTest, ARecordThatCannotBeMadeIsFatal)
{
    const auto fail = [&] {
        std::optional<AllocationFailure> failure;
        const SPY(Process32First) first([&](HANDLE snapshot, PROCESSENTRY32* entry) {
            const BOOL found = first.Real(snapshot, entry);
            failure.emplace(0);
            return found;
        });
        TakeProcessSnapshot(records);
    };
    AddProcesses(1);
    EXPECT_FATAL(fail(), L"CViewProcs::FillContents", L"Not enough memory");
}

TEST_F(ProcessSnapshotTest, EveryProcessHasARecordInTheSystemsOrder)
{
    system.Add(400, L"NK.EXE");
    system.Add(30, L"zebra.exe");
    system.Add(0xFFFFFFFE, L"apple.exe");
    system.Add(2, L"zebra.exe");
    system.processes[1].threads = 7;
    system.processes[2].threads = 0xFFFFFFFF;
    TakeProcessSnapshot(records);
    ASSERT_EQ(records.Count(), 4u);
    const struct
    {
        DWORD id;
        const wchar_t* name;
        uint32_t threads;
    } expected[] = {{400, L"NK.EXE", 1},
                    {30, L"zebra.exe", 7},
                    {0xFFFFFFFE, L"apple.exe", 0xFFFFFFFF},
                    {2, L"zebra.exe", 1}};
    for (uint32_t i = 0; i < 4; i++) {
        EXPECT_EQ(records.At(i)->id, expected[i].id) << i;
        EXPECT_STREQ(records.At(i)->name, expected[i].name) << i;
        EXPECT_EQ(records.At(i)->threadCount, expected[i].threads) << i;
    }
}

TEST_F(ProcessSnapshotTest, NamesAreTakenAsTheyAre)
{
    const std::wstring names[] = {L"%s%n%d.exe",           L"a & b.exe", L"", L"Ключ.exe",
                                  std::wstring(259, L'n'), L" nk.exe "};
    for (const std::wstring& name : names) {
        system.processes.clear();
        system.Add(5, name);
        EXPECT_EQ(Only().name.Buffer(), name);
    }
}

TEST_F(ProcessSnapshotTest, TheIconIsTheShellsSmallOneOfTheExecutable)
{
    system.Add(5, L"word.exe", L"\\Windows\\word.exe");
    system.Add(6, L"excel.exe", L"\\Office\\excel.exe");
    icons.indexes = {{L"\\Windows\\word.exe", 17}, {L"\\Office\\excel.exe", 0}};
    TakeProcessSnapshot(records);
    EXPECT_EQ(records.At(0)->iconIndex, 17);
    EXPECT_EQ(records.At(1)->iconIndex, 0);
    EXPECT_EQ(icons.askedPaths, (std::vector<std::wstring>{L"\\Windows\\word.exe", L"\\Office\\excel.exe"}));
    EXPECT_EQ(icons.askedFlags, (std::vector<UINT>{0x4001, 0x4001}));
    EXPECT_EQ(system.pathSizes, (std::vector<DWORD>{260, 260}));
}

TEST_F(ProcessSnapshotTest, AProcessWithoutAPathHasNoIconAndTheShellIsNotAsked)
{
    system.Add(5, L"word.exe", L"\\Windows\\word.exe");
    system.Add(6, L"gone.exe");
    icons.indexes = {{L"\\Windows\\word.exe", 17}, {L"", 3}};
    TakeProcessSnapshot(records);
    EXPECT_EQ(records.At(1)->iconIndex, -1) << "nor the one of the process before";
    EXPECT_EQ(icons.askedPaths.size(), 1u);
}

TEST_F(ProcessSnapshotTest, AnExecutableThatTheShellDoesNotKnowHasNoIcon)
{
    system.Add(5, L"word.exe", L"\\Windows\\word.exe");
    EXPECT_EQ(Only().iconIndex, -1);
    icons.indexes = {{L"\\Windows\\word.exe", -9}};
    EXPECT_EQ(Only().iconIndex, -9) << "what the shell answers is kept";
}

TEST_F(ProcessSnapshotTest, MemoryIsWhatTheProcesssOwnHeapsHold)
{
    system.Add(5, L"word.exe");
    system.Add(6, L"excel.exe");
    heaps.processes = {{5, {{{1000, 24}}, {{512}}}}, {6, {{{7}}}}};
    TakeProcessSnapshot(records);
    EXPECT_EQ(records.At(0)->heapBytes, 1536u);
    EXPECT_EQ(records.At(1)->heapBytes, 7u);
    EXPECT_EQ(heaps.snapshots, (std::vector<DWORD>{5, 6}));
}

TEST_F(ProcessSnapshotTest, MemoryStaysBelow4GiB)
{
    system.Add(5, L"word.exe");
    heaps.processes[5] = {{{3 * gibibyte}}, {{2 * gibibyte}}};
    EXPECT_EQ(Only().heapBytes, uint64_t{gibibyte});
    heaps.processes[5] = {{{0x80000000}}};
    EXPECT_EQ(Only().heapBytes, 0x80000000ULL) << "its highest bit is no sign";
    heaps.processes[5] = {{{0xFFFFFFFF}}};
    EXPECT_EQ(Only().heapBytes, 0xFFFFFFFFULL);
}

TEST_F(ProcessSnapshotTest, AWalkThatEndsEarlyKeepsWhatItHas)
{
    system.Add(5, L"word.exe");
    heaps.processes[5] = {{}, {{4096}}, {{20}}};
    EXPECT_EQ(Only().heapBytes, 0u) << "at the first heap";
    heaps.processes[5] = {{{4096}}, {}, {{20}}};
    EXPECT_EQ(Only().heapBytes, 4096u) << "at one between";
    heaps.processes[5] = {{{4096}}, {{20}}, {}};
    EXPECT_EQ(Only().heapBytes, 4116u) << "at the last";
    heaps.processes[5] = {};
    EXPECT_EQ(Only().heapBytes, 0u) << "without a heap";
    heaps.processes.clear();
    EXPECT_EQ(Only().heapBytes, 0u) << "without a snapshot";
}

TEST_F(ProcessSnapshotTest, OldRecordsAreFreedBeforeTheSystemIsAsked)
{
    AddProcesses(25);
    TakeProcessSnapshot(records);
    const size_t before = LiveBlocks();
    uint32_t countWhenAsked = 99;
    size_t blocksWhenAsked = before;
    {
        SPY(CreateToolhelp32Snapshot) take;
        take.instead = [&](DWORD flags, DWORD process) {
            if (flags == 0x40000002) {
                countWhenAsked = records.Count();
                blocksWhenAsked = LiveBlocks();
            }
            return take.Real(flags, process);
        };
        TakeProcessSnapshot(records);
    }
    EXPECT_EQ(countWhenAsked, 0u);
    EXPECT_LE(blocksWhenAsked + 25, before) << "a record each, at least";
    EXPECT_EQ(records.Count(), 25u);
}

TEST_F(ProcessSnapshotTest, TheArrayGrowsByTenAndNeverShrinks)
{
    const std::pair<uint32_t, uint32_t> capacities[] = {{1, 10}, {10, 10}, {11, 20}, {21, 30}, {5, 30}};
    for (const auto& [count, capacity] : capacities) {
        system.processes.clear();
        AddProcesses(count);
        TakeProcessSnapshot(records);
        EXPECT_EQ(records.Count(), count);
        EXPECT_EQ(records.Capacity(), capacity) << count;
    }
}

TEST_F(ProcessSnapshotTest, ManySnapshotsLeaveNothing)
{
    AddProcesses(30);
    const auto takeFifty = [&] {
        for (int i = 0; i < 50; i++) {
            TakeProcessSnapshot(records);
            system.snapshots.clear();
            system.pathSizes.clear();
            heaps.snapshots.clear();
            heaps.snapshotFlags.clear();
        }
    };
    takeFifty(); // the script's own blocks are there now
    const size_t before = LiveBlocks();
    takeFifty();
    EXPECT_EQ(LiveBlocks(), before);
    EXPECT_EQ(system.open, 0);
    EXPECT_EQ(heaps.open, 0);
}
