// Layout and the slow side of the checks.
#include "tools/runner/machine/GuestMemory.h"

#include <algorithm>
#include <new>

namespace runner {

static constexpr std::size_t pageCount = 0x100000;

static_assert(static_cast<int>(GuestMemory::ByteState::Outside) == 0, "a fresh heap is zeroed");

static std::uint8_t* Zeroed(std::size_t size)
{
    // Untouched pages of such a block cost nothing.
    auto* block = static_cast<std::uint8_t*>(std::calloc(size, 1));
    if (!block) {
        throw std::bad_alloc();
    }
    return block;
}

GuestMemory::GuestMemory(FindingSink& findings, Word memorySize)
    : sink(findings), size(memorySize), bytes(Zeroed(size)), undefined(Zeroed(size)),
      pages(pageCount, NoAccess)
{}

void GuestMemory::Map(Address begin, Word length, unsigned protection, Content content)
{
    const auto first = pages.begin() + begin / pageSize;
    std::fill(first, first + length / pageSize, static_cast<std::uint8_t>(protection));
    if (content == Content::Undefined) {
        MarkUndefined(begin, length);
    } else {
        MarkDefined(begin, length);
    }
}

void GuestMemory::Unmap(Address begin, Word length)
{
    Map(begin, length, NoAccess);
}

void GuestMemory::SetHeap(Address begin, Word length, const BlockFinder* blocks)
{
    heapBegin = begin;
    heapSize = length;
    finder = blocks;
    heapBytes.reset(Zeroed(length));
}

void GuestMemory::SetHeapBytes(Address begin, Word length, ByteState state)
{
    std::memset(heapBytes.get() + (begin - heapBegin), static_cast<int>(state), length);
}

void GuestMemory::SetStack(Address top, Word reserve)
{
    stackTop = top;
    stackLow = top - reserve;
    stackPointer = top;
    lowestStackPointer = top;
    lowestStackPage = top - pageSize;
    Map(stackLow, reserve, NoAccess, Content::Undefined);
    pages[lowestStackPage / pageSize] = CanRead | CanWrite;
    pages[lowestStackPage / pageSize - 1] = IsGuard;
}

void GuestMemory::MoveStackPointer(Address pointer)
{
    if (pointer - stackLow > stackTop - stackLow) {
        Report(FindingKind::StackOverflow, Access::None, pointer, 0);
    }
    if (pointer % sizeof(Word) != 0) {
        Report(FindingKind::Unaligned, Access::None, pointer, 0);
    }
    lowestStackPointer = std::min(lowestStackPointer, pointer);
    if (pointer > stackPointer) {
        MarkUndefined(stackPointer, pointer - stackPointer);
    }
    stackPointer = pointer;
}

void GuestMemory::Report(FindingKind kind, Access access, Address address, Word length)
{
    Finding finding;
    finding.kind = kind;
    finding.access = access;
    finding.address = address;
    finding.size = length;
    if (finder && address - heapBegin < heapSize) {
        finding.block = finder->BlockNear(address);
    }
    sink.Report(finding);
}

void GuestMemory::RefuseOrGrow(Access access, Address address, Word length)
{
    if ((address & (length - 1)) != 0) {
        Report(FindingKind::Unaligned, access, address, length);
    }
    CheckPages(access, address, length);
}

void GuestMemory::CheckPages(Access access, Address address, Word length)
{
    const unsigned needed = access == Access::Read || access == Access::Look ? CanRead : CanWrite;
    const Word last = std::max(length, Word{1}) - 1;
    if (address >= size || last >= size - address) {
        Report(FindingKind::Unmapped, access, address, length);
    }
    // Downwards, as the stack grows.
    for (Address page = (address + last) / pageSize; page + 1 > address / pageSize; page--) {
        if ((pages[page] & needed) != 0) {
            continue;
        }
        const Address place = std::max(address, page * pageSize);
        if (pages[page] == IsGuard) {
            pages[page] = CanRead | CanWrite;
            lowestStackPage = page * pageSize;
            if (lowestStackPage > stackLow) {
                pages[page - 1] = IsGuard;
            }
        } else if (pages[page] != NoAccess) {
            Report(FindingKind::Protected, access, place, length);
        } else if (stackTop - place <= stackTop - stackLow + pageSize) {
            Report(FindingKind::StackOverflow, access, place, length);
        } else {
            Report(FindingKind::Unmapped, access, place, length);
        }
    }
}

void GuestMemory::CheckBlock(Access access, Address address, Word length)
{
    if (address - heapBegin >= heapSize) {
        return;
    }
    const std::uint8_t* states = heapBytes.get() + (address - heapBegin);
    for (Word i = 0; i < length; i++) {
        if (states[i] != static_cast<std::uint8_t>(ByteState::Live)) {
            const bool freed = states[i] == static_cast<std::uint8_t>(ByteState::Freed);
            Report(freed ? FindingKind::Freed : FindingKind::OutOfBlock, access, address + i, length);
        }
    }
}

void GuestMemory::CheckStack(Access access, Address address, Word length)
{
    if (address - stackLow < stackPointer - stackLow) {
        Report(FindingKind::BelowStack, access, address, length);
    }
}

void* GuestMemory::Checked(Address address, Word alignment, Word length, Access access)
{
    if (address % alignment != 0) {
        Report(FindingKind::Unaligned, access, address, length);
    }
    CheckPages(access, address, length);
    CheckBlock(access, address, length);
    CheckStack(access, address, length);
    if (access == Access::Read) {
        const auto* first = undefined.get() + address;
        const auto* found = std::find_if(first, first + length, [](std::uint8_t mask) { return mask != 0; });
        if (found != first + length) {
            Report(FindingKind::Undefined, access, static_cast<Address>(found - undefined.get()), length);
        }
    } else if (access == Access::Write) {
        MarkDefined(address, length);
    }
    return bytes.get() + address;
}

template <class Character>
std::basic_string<Character> GuestMemory::TextOf(Address address)
{
    std::basic_string<Character> text;
    for (;; address += sizeof(Character)) {
        const auto character = Read<Character>(address);
        if (character == 0) {
            return text;
        }
        text += character;
    }
}

std::u16string GuestMemory::Text(Address address)
{
    return TextOf<char16_t>(address);
}

std::string GuestMemory::NarrowText(Address address)
{
    return TextOf<char>(address);
}

Address GuestMemory::GuestAddress(const void* host) const
{
    const auto* place = static_cast<const std::uint8_t*>(host);
    return place >= bytes.get() && place < bytes.get() + size ? static_cast<Address>(place - bytes.get()) : 0;
}

bool GuestMemory::IsDefined(Address begin, Word length) const
{
    const auto* first = undefined.get() + begin;
    return std::all_of(first, first + length, [](std::uint8_t mask) { return mask == 0; });
}

void GuestMemory::CopyWithMarks(Address to, Address from, Word length)
{
    std::memmove(bytes.get() + to, bytes.get() + from, length);
    std::memmove(undefined.get() + to, undefined.get() + from, length);
}

} // namespace runner
