// The guest's memory: one block of the host's, checked at every access.
#pragma once

#include "tools/runner/machine/Finding.h"

#include <bit>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <type_traits>
#include <vector>

namespace runner {

static_assert(std::endian::native == std::endian::little, "values are copied as they are");

// Of a page.
enum Protection : std::uint8_t
{
    NoAccess = 0,
    CanRead = 1,
    CanWrite = 2,
    CanExecute = 4,
    IsGuard = 8, // the next page of the stack
};

// What is in a fresh mapping.
enum class Content
{
    Defined,
    Undefined,
};

// Who can tell which block of a heap an address belongs to.
class BlockFinder
{
  public:
    virtual ~BlockFinder() = default;
    virtual std::optional<Block> BlockNear(Address address) const = 0;
};

// The checks of an access, in this order: alignment, mapping, protection, block, stack, defined bytes.
class GuestMemory
{
  public:
    static constexpr Word pageSize = 0x1000;

    // Of a byte of the heap.
    enum class ByteState : std::uint8_t
    {
        Outside,
        Live,
        Freed,
    };

  private:
    struct Release
    {
        void operator()(std::uint8_t* block) const { std::free(block); }
    };
    using HostBlock = std::unique_ptr<std::uint8_t[], Release>;

    FindingSink& sink;
    const Word size;
    const BlockFinder* finder = nullptr;
    HostBlock bytes;
    HostBlock undefined;             // for each byte the mask of its undefined bits
    std::vector<std::uint8_t> pages; // protection, of the whole 4 GiB
    HostBlock heapBytes;             // a ByteState each
    Address heapBegin = 0;
    Word heapSize = 0;
    Address stackLow = 0; // what the header reserves; only the part above the guard page is mapped
    Address stackTop = 0;
    Address stackPointer = 0;
    Address lowestStackPointer = 0;
    Address lowestStackPage = 0;

  public:
    GuestMemory(FindingSink& findings, Word size);
    GuestMemory(const GuestMemory&) = delete;
    GuestMemory& operator=(const GuestMemory&) = delete;

    Word Size() const { return size; }

    // ---- Layout. Places and sizes are whole pages.
    void Map(Address begin, Word length, unsigned protection, Content content = Content::Defined);
    void Unmap(Address begin, Word length);
    unsigned ProtectionAt(Address address) const { return pages[address / pageSize]; }
    // Accesses to the region have to hit bytes that SetHeapBytes declared live. The heap maps what it needs.
    void SetHeap(Address begin, Word length, const BlockFinder* blocks);
    void SetHeapBytes(Address begin, Word length, ByteState state);
    // The stack grows page by page from its top down, and never beyond the reserve.
    void SetStack(Address top, Word reserve);
    // What a rising pointer leaves behind counts as never written.
    void MoveStackPointer(Address pointer);
    Address LowestStackPointer() const { return lowestStackPointer; }
    Address LowestStackPage() const { return lowestStackPage; }
    Address StackLow() const { return stackLow; }

    // ---- For the processor: undefined bits travel along.
    template <class T>
    Value Load(Address address);
    template <class T>
    void Store(Address address, Value value);

    // Where execution is allowed.
    Word Fetch(Address address) const
    {
        Word instruction;
        std::memcpy(&instruction, bytes.get() + address, sizeof instruction);
        return instruction;
    }

    // ---- For the host's side. The pointer stays good as long as the mapping does.
    // Alignment: 1, 2 or 4; the device's libraries ask for no more.
    void* Checked(Address address, Word alignment, Word length, Access access);
    template <class T>
    T Read(Address address);
    template <class T>
    void Write(Address address, T value);
    // The text up to its zero, which has to be there.
    std::u16string Text(Address address);
    std::string NarrowText(Address address);
    // Without checks, for what the runner itself puts into the memory.
    std::uint8_t* Host(Address address) { return bytes.get() + address; }
    // 0 for what does not lie in the guest's memory.
    Address GuestAddress(const void* host) const;
    void MarkDefined(Address begin, Word length) { std::memset(undefined.get() + begin, 0, length); }
    void MarkUndefined(Address begin, Word length) { std::memset(undefined.get() + begin, 0xFF, length); }
    bool IsDefined(Address begin, Word length) const;
    // Undefined bytes stay undefined.
    void CopyWithMarks(Address to, Address from, Word length);

  private:
    [[noreturn]] void Report(FindingKind kind, Access access, Address address, Word length);
    // Nothing, after the stack has grown; else it reports.
    void RefuseOrGrow(Access access, Address address, Word length);
    void CheckPages(Access access, Address address, Word length);
    void CheckBlock(Access access, Address address, Word length);
    void CheckStack(Access access, Address address, Word length);
    template <class Character>
    std::basic_string<Character> TextOf(Address address);
};

template <class T>
Value GuestMemory::Load(Address address)
{
    if ((address % sizeof(T)) != 0 || (pages[address / pageSize] & CanRead) == 0) [[unlikely]] {
        RefuseOrGrow(Access::Read, address, sizeof(T));
    }
    T value;
    T mask;
    std::memcpy(&value, bytes.get() + address, sizeof(T));
    std::memcpy(&mask, undefined.get() + address, sizeof(T));
    if (mask != 0) [[unlikely]] {
        // Whatever is outside a block or below the stack pointer is undefined too.
        CheckBlock(Access::Read, address, sizeof(T));
        CheckStack(Access::Read, address, sizeof(T));
    }
    return {value, mask};
}

template <class T>
void GuestMemory::Store(Address address, Value value)
{
    if ((address % sizeof(T)) != 0 || (pages[address / pageSize] & CanWrite) == 0) [[unlikely]] {
        RefuseOrGrow(Access::Write, address, sizeof(T));
    }
    if (address - heapBegin < heapSize) {
        CheckBlock(Access::Write, address, sizeof(T));
    } else if (address - stackLow < stackPointer - stackLow) [[unlikely]] {
        CheckStack(Access::Write, address, sizeof(T));
    }
    const T bitsToStore = static_cast<T>(value.bits);
    const T mask = static_cast<T>(value.undefined);
    std::memcpy(bytes.get() + address, &bitsToStore, sizeof(T));
    std::memcpy(undefined.get() + address, &mask, sizeof(T));
}

template <class T>
T GuestMemory::Read(Address address)
{
    static_assert(std::is_trivially_copyable_v<T>);
    T value;
    std::memcpy(&value, Checked(address, alignof(T) < 4 ? alignof(T) : 4, sizeof(T), Access::Read),
                sizeof(T));
    return value;
}

template <class T>
void GuestMemory::Write(Address address, T value)
{
    static_assert(std::is_trivially_copyable_v<T>);
    std::memcpy(Checked(address, alignof(T) < 4 ? alignof(T) : 4, sizeof(T), Access::Write), &value,
                sizeof(T));
}

} // namespace runner
