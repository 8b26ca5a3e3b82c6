// Operator new and delete of the test executables.
#include "tests/support/TestHeap.h"

#include "tests/support/GuardedHeap.h"

#include <atomic>
#include <cstdlib>
#include <malloc.h>
#include <new>

static std::atomic<size_t> liveBlocks;
static std::atomic<size_t> blocksEver;
static std::atomic<int64_t> successesLeft{INT64_MAX};
static std::atomic<bool> refused;

size_t LiveBlocks()
{
    return liveBlocks;
}

size_t BlocksEver()
{
    return blocksEver;
}

AllocationFailure::AllocationFailure(uint32_t successes)
{
    refused = false;
    successesLeft = successes;
}

bool AllocationFailure::Happened() const
{
    return refused;
}

AllocationFailure::~AllocationFailure()
{
    successesLeft = INT64_MAX;
}

static void* Allocate(size_t size)
{
    if (successesLeft <= 0) {
        refused = true;
        return nullptr;
    }
    if (successesLeft != INT64_MAX) {
        successesLeft--;
    }
#ifdef QV_CHECKED
    void* const block = GuardedAllocate(size);
#else
    void* const block = malloc(size ? size : 1);
#endif
    if (block) {
        liveBlocks++;
        blocksEver++;
    }
    return block;
}

size_t BlockSize(void* block)
{
#ifdef QV_CHECKED
    return GuardedSize(block);
#else
    return _msize(block);
#endif
}

static void Free(void* block)
{
    if (!block) {
        return;
    }
    liveBlocks--;
#ifdef QV_CHECKED
    GuardedFree(block);
#else
    free(block);
#endif
}

void* operator new(size_t size)
{
    return Allocate(size);
}

void* operator new[](size_t size)
{
    return Allocate(size);
}

void* operator new(size_t size, const std::nothrow_t&) noexcept
{
    return Allocate(size);
}

void* operator new[](size_t size, const std::nothrow_t&) noexcept
{
    return Allocate(size);
}

void operator delete(void* block) noexcept
{
    Free(block);
}

void operator delete[](void* block) noexcept
{
    Free(block);
}

void operator delete(void* block, size_t) noexcept
{
    Free(block);
}

void operator delete[](void* block, size_t) noexcept
{
    Free(block);
}
