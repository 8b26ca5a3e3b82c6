// A tool-help snapshot of one process's heaps.
#pragma once

#include "platform/ce.h"

// The heaps of a process in walking order. Which blocks it finds depends on the process: a profile's script,
// the real blocks of the calling process, or one block that stands for all the memory of another one.
class HeapSnapshot
{
  public:
    virtual ~HeapSnapshot() = default;
    HeapSnapshot(const HeapSnapshot&) = delete;
    HeapSnapshot& operator=(const HeapSnapshot&) = delete;

    virtual DWORD HeapCount() const = 0;
    // Moves to the first or next block of a heap and gives its size; false behind the last one.
    virtual bool FirstBlock(DWORD heap, SIZE_T& size) = 0;
    virtual bool NextBlock(SIZE_T& size) = 0;

    DWORD ProcessId() const { return processId; }

    DWORD currentHeap = 0; // of the walk over the heaps, not over blocks

  protected:
    explicit HeapSnapshot(DWORD process) : processId(process) {}

  private:
    DWORD processId;
};

// Null when the process has gone or does not let itself be asked.
HeapSnapshot* TakeHeapSnapshot(DWORD processId);
