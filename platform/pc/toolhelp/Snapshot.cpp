// The three kinds of heap snapshots.
#include "platform/pc/toolhelp/Snapshot.h"

#include "platform/pc/common/ActiveProfile.h"

#include <psapi.h>

namespace {

class ScriptedHeaps final : public HeapSnapshot
{
  public:
    ScriptedHeaps(DWORD processId, const handheld::HeapScript& script)
        : HeapSnapshot(processId), m_script(script)
    {}

    DWORD HeapCount() const override { return static_cast<DWORD>(m_script.heaps.size()); }

    bool FirstBlock(DWORD heap, SIZE_T& size) override
    {
        m_heap = heap;
        m_block = 0;
        return NextBlock(size);
    }

    bool NextBlock(SIZE_T& size) override
    {
        const auto& blocks = m_script.heaps[m_heap];
        if (m_block >= blocks.size())
            return false;
        size = blocks[m_block++];
        return true;
    }

  private:
    const handheld::HeapScript& m_script; // of the active profile, which lives as long as the process
    DWORD m_heap = 0;
    size_t m_block = 0;
};

// Walks while it is asked: collecting the blocks first would allocate from a heap in the middle of its walk.
class OwnHeaps final : public HeapSnapshot
{
  public:
    OwnHeaps() : HeapSnapshot(GetCurrentProcessId())
    {
        const DWORD count = GetProcessHeaps(Capacity, m_heaps);
        m_count = count < Capacity ? count : Capacity;
    }

    DWORD HeapCount() const override { return m_count; }

    bool FirstBlock(DWORD heap, SIZE_T& size) override
    {
        m_heap = m_heaps[heap];
        m_entry = {};
        return NextBlock(size);
    }

    bool NextBlock(SIZE_T& size) override
    {
        while (m_heap && HeapWalk(m_heap, &m_entry))
            if ((m_entry.wFlags & (PROCESS_HEAP_REGION | PROCESS_HEAP_UNCOMMITTED_RANGE)) == 0) {
                size = m_entry.cbData;
                return true;
            }
        return false;
    }

  private:
    static constexpr DWORD Capacity = 64;
    HANDLE m_heaps[Capacity];
    DWORD m_count;
    HANDLE m_heap = nullptr;
    PROCESS_HEAP_ENTRY m_entry = {};
};

class ForeignHeap final : public HeapSnapshot
{
  public:
    ForeignHeap(DWORD processId, SIZE_T size) : HeapSnapshot(processId), m_size(size) {}

    DWORD HeapCount() const override { return 1; }

    bool FirstBlock(DWORD, SIZE_T& size) override
    {
        size = m_size;
        return true;
    }

    bool NextBlock(SIZE_T&) override { return false; }

  private:
    SIZE_T m_size;
};

// Only a profile with figures of its own makes the program's path worth its questions, for every task of a
// refresh.
const handheld::HeapScript* FindScript(HANDLE process)
{
    const handheld::Profile& profile = handheld::ActiveProfile();
    if (profile.heapScripts.empty()) {
        return nullptr;
    }
    wchar_t path[MAX_PATH] = {};
    DWORD length = MAX_PATH;
    QueryFullProcessImageNameW(process, 0, path, &length);
    return profile.FindHeapScript(path);
}

} // namespace

HeapSnapshot* TakeHeapSnapshot(DWORD processId)
{
    if (processId == 0)
        processId = GetCurrentProcessId();
    const HANDLE process = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processId);
    if (!process)
        return nullptr;
    HeapSnapshot* snapshot = nullptr;
    PROCESS_MEMORY_COUNTERS memory = {};
    if (const handheld::HeapScript* script = FindScript(process))
        snapshot = new ScriptedHeaps(processId, *script);
    else if (processId == GetCurrentProcessId())
        snapshot = new OwnHeaps;
    // Committed private memory stands for the heaps: walking another process's real ones takes tens of
    // milliseconds.
    else if (GetProcessMemoryInfo(process, &memory, sizeof(memory)))
        snapshot = new ForeignHeap(processId, memory.PagefileUsage);
    CloseHandle(process);
    return snapshot;
}
