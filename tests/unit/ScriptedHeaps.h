// Heaps of processes that exist only in a script: what the program asks the tool-help library is answered
// from it.
#pragma once

#include "tests/support/ImportHook.h"

#include "platform/ce.h"

#include <map>
#include <vector>

struct ScriptedHeap
{
    std::vector<DWORD> blocks; // bytes; without one the first block cannot be had
    DWORD blockFlags = 0;
};

// One at a time. A process that is not in the script has no snapshot.
class ScriptedHeaps
{
  public:
    std::map<DWORD, std::vector<ScriptedHeap>> processes;
    std::vector<DWORD> snapshots; // processes a snapshot was asked of
    std::vector<DWORD> snapshotFlags;
    std::vector<DWORD> visitedHeaps; // numbers, from 0, whose first block was asked for
    int open = 0;                    // snapshots not closed yet
    bool badRequest = false;         // a record without its size, or a handle or an id that was not given out

    ScriptedHeaps();
    ~ScriptedHeaps();
    ScriptedHeaps(const ScriptedHeaps&) = delete;
    ScriptedHeaps& operator=(const ScriptedHeaps&) = delete;

  private:
    ImportHook hooks[6];
};
