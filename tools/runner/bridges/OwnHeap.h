// Walks over the guest's own heap. The substitute would walk that of the runner, which is no concern of the
// guest's.
#pragma once

#include "tools/runner/bridges/Host.h"

#include <map>

namespace runner {

class OwnHeap
{
    std::map<Word, Address> walks; // by the snapshots' cookies: the block of the last answer, or 0

  public:
    static OwnHeap& Instance();

    // Whether a snapshot of this process's heaps shows the guest's: where the profile does not say what it
    // shall show.
    static bool IsMeant(Word flags, Word process);

    void Open(Word snapshot) { walks[snapshot] = 0; }
    void Close(Word snapshot) { walks.erase(snapshot); }
    bool IsOpen(Word snapshot) const { return walks.contains(snapshot); }
    // The first block, or the one behind the last; null behind all.
    const Block* First(const GuestHeap& heap, Word snapshot);
    const Block* Next(const GuestHeap& heap, Word snapshot);
};

} // namespace runner
