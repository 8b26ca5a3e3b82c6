// Walks over the guest's own heap.
#include "tools/runner/bridges/OwnHeap.h"

#include "platform/pc/common/ProcessPath.h"

namespace runner {

OwnHeap& OwnHeap::Instance()
{
    static OwnHeap instance;
    return instance;
}

bool OwnHeap::IsMeant(Word flags, Word process)
{
    if ((flags & TH32CS_SNAPHEAPLIST) == 0 || (process != 0 && process != GetCurrentProcessId())) {
        return false;
    }
    const handheld::Profile& profile = handheld::ActiveProfile();
    return profile.heapScripts.empty() ||
           !profile.FindHeapScript(handheld::PathOfProcess(reinterpret_cast<HANDLE>(LONG_PTR{-1})));
}

const Block* OwnHeap::First(const GuestHeap& heap, Word snapshot)
{
    walks[snapshot] = 0;
    return Next(heap, snapshot);
}

const Block* OwnHeap::Next(const GuestHeap& heap, Word snapshot)
{
    const auto block = heap.Blocks().upper_bound(walks[snapshot]);
    if (block == heap.Blocks().end()) {
        return nullptr;
    }
    walks[snapshot] = block->first;
    return &block->second;
}

} // namespace runner
