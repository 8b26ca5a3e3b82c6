// The three kinds of heap snapshots.
#include "platform/pc/toolhelp/Snapshot.h"

#include "platform/pc/common/ProcessPath.h"

#include <psapi.h>

namespace {

class ScriptedHeaps final : public HeapSnapshot
{
  public:
    ScriptedHeaps(DWORD process, const handheld::HeapScript& written) : HeapSnapshot(process), script(written)
    {}

    DWORD HeapCount() const override { return static_cast<DWORD>(script.heaps.size()); }

    bool FirstBlock(DWORD number, SIZE_T& size) override
    {
        heap = number;
        block = 0;
        return NextBlock(size);
    }

    bool NextBlock(SIZE_T& size) override
    {
        const auto& blocks = script.heaps[heap];
        if (block >= blocks.size()) {
            return false;
        }
        size = blocks[block++];
        return true;
    }

  private:
    const handheld::HeapScript& script; // of the active profile, which lives as long as the process
    DWORD heap = 0;
    size_t block = 0;
};

// Walks while it is asked: collecting the blocks first would allocate from a heap in the middle of its walk.
class OwnHeaps final : public HeapSnapshot
{
  public:
    OwnHeaps() : HeapSnapshot(GetCurrentProcessId())
    {
        const DWORD all = GetProcessHeaps(capacity, heaps);
        count = all < capacity ? all : capacity;
    }

    DWORD HeapCount() const override { return count; }

    bool FirstBlock(DWORD number, SIZE_T& size) override
    {
        heap = heaps[number];
        entry = {};
        return NextBlock(size);
    }

    bool NextBlock(SIZE_T& size) override
    {
        while (heap && HeapWalk(heap, &entry)) {
            if ((entry.wFlags & (PROCESS_HEAP_REGION | PROCESS_HEAP_UNCOMMITTED_RANGE)) == 0) {
                size = entry.cbData;
                return true;
            }
        }
        return false;
    }

  private:
    static constexpr DWORD capacity = 64;
    HANDLE heaps[capacity];
    DWORD count;
    HANDLE heap = nullptr;
    PROCESS_HEAP_ENTRY entry = {};
};

class ForeignHeap final : public HeapSnapshot
{
  public:
    ForeignHeap(DWORD process, SIZE_T memory) : HeapSnapshot(process), committed(memory) {}

    DWORD HeapCount() const override { return 1; }

    bool FirstBlock(DWORD, SIZE_T& size) override
    {
        size = committed;
        return true;
    }

    bool NextBlock(SIZE_T&) override { return false; }

  private:
    SIZE_T committed; // bytes
};

} // namespace

// Only a profile with figures of its own makes the program's path worth its questions, for every task of a
// refresh.
static const handheld::HeapScript* FindScript(HANDLE process)
{
    const handheld::Profile& profile = handheld::ActiveProfile();
    if (profile.heapScripts.empty()) {
        return nullptr;
    }
    return profile.FindHeapScript(handheld::PathOfProcess(process));
}

HeapSnapshot* TakeHeapSnapshot(DWORD processId)
{
    if (processId == 0) {
        processId = GetCurrentProcessId();
    }
    const HANDLE process = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processId);
    if (!process) {
        return nullptr;
    }
    HeapSnapshot* snapshot = nullptr;
    PROCESS_MEMORY_COUNTERS memory = {};
    if (const handheld::HeapScript* script = FindScript(process)) {
        snapshot = new ScriptedHeaps(processId, *script);
    } else if (processId == GetCurrentProcessId()) {
        snapshot = new OwnHeaps;
        // Committed private memory stands for the heaps: walking another process's real ones takes tens of
        // milliseconds.
    } else if (GetProcessMemoryInfo(process, &memory, sizeof(memory))) {
        snapshot = new ForeignHeap(processId, memory.PagefileUsage);
    }
    CloseHandle(process);
    return snapshot;
}
