// What this process has created and not given back: a before and an after of it show a leak.
#pragma once

#include "tests/support/GdiTable.h"

#include <cstddef>
#include <iosfwd>

// Holds no block itself, so that one count does not disturb the next.
struct ObjectCounts
{
    GdiCounts gdiObjects{};
    int windows = 0; // of this thread, children included
    int menus = 0;
    int acceleratorTables = 0;
    size_t programBlocks = 0; // of operator new
    size_t heapBlocks = 0;    // of all heaps: the C library's, the system's and the program's

    // Warm up first: stock objects, cached brushes and fonts are made when they are first needed.
    static ObjectCounts Now();

    // All but heapBlocks, which the system's own caches move by a few either way.
    bool SameObjects(const ObjectCounts& other) const;
};

void PrintTo(const ObjectCounts& counts, std::ostream* out);
