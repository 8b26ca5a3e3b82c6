// The heap behind operator new of a test executable: it counts, fails on request, and in a checked build is
// guarded.
#pragma once

#include <cstddef>
#include <cstdint>

// In a checked build every block ends at an unmapped page: reading or writing behind it, using it after its
// end and freeing it twice end the process at the faulty instruction. In the other builds blocks are only
// counted. Blocks of malloc, LocalAlloc and the substitute DLLs are none of these: the program itself
// allocates by operator new, except for the images' data.
size_t LiveBlocks();
size_t BlocksEver();           // those that were given back since, too
size_t BlockSize(void* block); // bytes, as asked for

// While it lives, operator new returns null after so many more successes. Only code that is compiled to
// expect a null may run then: the program's.
class AllocationFailure
{
  public:
    explicit AllocationFailure(uint32_t successes);
    ~AllocationFailure();
    bool Happened() const; // a block was asked for and refused
    AllocationFailure(const AllocationFailure&) = delete;
    AllocationFailure& operator=(const AllocationFailure&) = delete;
};
