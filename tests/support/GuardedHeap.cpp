// Blocks that end at an unmapped page.
#include "tests/support/GuardedHeap.h"

#include <windows.h>

#include <cstdint>
#include <cstdio>
#include <cstring>

// A region: header, space, the block, up to 15 bytes of slack (a block is aligned), the unmapped page.
struct RegionHeader
{
    uint64_t mark;
    size_t size; // of the block
    uint8_t* block;
};

static const uint64_t liveMark = 0x5156475541524421;
static const size_t pageSize = 4096;
static const size_t alignment = 16;
static const uint8_t slackByte = 0xFD;
static const uint8_t freshByte = 0xCD; // so that reading before writing shows

// Freed regions stay reserved for a while, so that their addresses stay invalid; then the oldest is given
// back. Each takes two of the 65530 mappings that Linux lets a process have.
static const size_t quarantineSize = 1 << 14;
static void* quarantine[quarantineSize];
static size_t quarantineNext;
static SRWLOCK quarantineLock = SRWLOCK_INIT;

[[noreturn]] static void Die(const char* what, const void* block)
{
    fprintf(stderr, "guarded heap: %s %p\n", what, block);
    fflush(stderr);
    __builtin_trap();
}

static size_t RoundUp(size_t value, size_t unit)
{
    return (value + unit - 1) / unit * unit;
}

void* GuardedAllocate(size_t size)
{
    if (size > SIZE_MAX / 2) {
        return nullptr;
    }
    const size_t aligned = RoundUp(size ? size : 1, alignment);
    const size_t used = RoundUp(sizeof(RegionHeader) + aligned, pageSize);
    auto* const region =
        static_cast<uint8_t*>(VirtualAlloc(nullptr, used + pageSize, MEM_RESERVE, PAGE_NOACCESS));
    if (!region) {
        return nullptr;
    }
    if (!VirtualAlloc(region, used, MEM_COMMIT, PAGE_READWRITE)) {
        VirtualFree(region, 0, MEM_RELEASE);
        return nullptr;
    }
    uint8_t* const block = region + used - aligned;
    auto* const header = reinterpret_cast<RegionHeader*>(region);
    *header = {liveMark, size, block};
    memset(block, freshByte, size);
    memset(block + size, slackByte, aligned - size);
    return block;
}

// The header of a block in use; there is none for anything else.
static RegionHeader* HeaderOf(const void* block)
{
    MEMORY_BASIC_INFORMATION info;
    if (!VirtualQuery(block, &info, sizeof(info)) || info.State != MEM_COMMIT) {
        Die("freed twice, or never allocated:", block);
    }
    auto* const header = static_cast<RegionHeader*>(info.AllocationBase);
    if (header->mark != liveMark || header->block != block) {
        Die("not a block:", block);
    }
    return header;
}

size_t GuardedSize(const void* block)
{
    return HeaderOf(block)->size;
}

void GuardedFree(void* block)
{
    RegionHeader* const header = HeaderOf(block);
    const uint8_t* const end = header->block + header->size;
    const size_t slack = RoundUp(header->size ? header->size : 1, alignment) - header->size;
    for (size_t i = 0; i < slack; i++) {
        if (end[i] != slackByte) {
            Die("written behind its end:", block);
        }
    }
    VirtualFree(header, RoundUp(sizeof(RegionHeader) + header->size, pageSize), MEM_DECOMMIT);

    AcquireSRWLockExclusive(&quarantineLock);
    void* const oldest = quarantine[quarantineNext];
    quarantine[quarantineNext] = header;
    quarantineNext = (quarantineNext + 1) % quarantineSize;
    ReleaseSRWLockExclusive(&quarantineLock);
    if (oldest) {
        VirtualFree(oldest, 0, MEM_RELEASE);
    }
}
