// What this process has created and not given back.
#include "tests/support/ObjectCounts.h"

#include "tests/support/BusyBlocks.h"
#include "tests/support/TestHeap.h"

#include <windows.h>

#include <ostream>

static GdiCounts OwnGdiObjects()
{
    const FARPROC ownPeb = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetCurrentPeb");
    const auto* peb = reinterpret_cast<const uint8_t*(WINAPI*)()>(reinterpret_cast<void*>(ownPeb))();
    return CountGdiObjects(*reinterpret_cast<const GdiEntry* const*>(peb + gdiTableInPeb));
}

static BOOL CALLBACK CountChild(HWND, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

static BOOL CALLBACK CountWindow(HWND window, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    EnumChildWindows(window, CountChild, count);
    return TRUE;
}

// Of the handles that windows, menus and accelerator tables share, those that pass the test.
template <typename Handle>
static int CountHandles(bool (*isOne)(Handle))
{
    int count = 0;
    for (uintptr_t handle = 0x20; handle <= 0xFFF0; handle += 2) {
        if (isOne(reinterpret_cast<Handle>(handle))) {
            count++;
        }
    }
    return count;
}

static int CountMenus()
{
    return CountHandles<HMENU>([](HMENU menu) { return IsMenu(menu) != FALSE; });
}

// A table has at least one key; what is no table has none.
static int CountAcceleratorTables()
{
    return CountHandles<HACCEL>([](HACCEL table) { return CopyAcceleratorTableW(table, nullptr, 0) > 0; });
}

static size_t CountHeapBlocks()
{
    HANDLE heaps[64];
    const DWORD count = GetProcessHeaps(64, heaps);
    size_t blocks = 0;
    for (DWORD i = 0; i < count && i < 64; i++) {
        blocks += static_cast<size_t>(BusyBlocks(heaps[i]));
    }
    return blocks;
}

ObjectCounts ObjectCounts::Now()
{
    ObjectCounts counts;
    counts.programBlocks = LiveBlocks();
    counts.heapBlocks = CountHeapBlocks();
    EnumThreadWindows(GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&counts.windows));
    counts.menus = CountMenus();
    counts.acceleratorTables = CountAcceleratorTables();
    counts.gdiObjects = OwnGdiObjects();
    return counts;
}

bool ObjectCounts::SameObjects(const ObjectCounts& other) const
{
    return gdiObjects == other.gdiObjects && windows == other.windows && menus == other.menus &&
           acceleratorTables == other.acceleratorTables;
}

void PrintTo(const ObjectCounts& counts, std::ostream* out)
{
    *out << counts.windows << " windows, " << counts.menus << " menus, " << counts.acceleratorTables
         << " accelerator tables, " << counts.programBlocks << " + " << counts.heapBlocks
         << " blocks; GDI objects by type:";
    for (size_t type = 0; type < counts.gdiObjects.size(); type++) {
        if (counts.gdiObjects[type] != 0) {
            *out << ' ' << std::hex << type << std::dec << ':' << counts.gdiObjects[type];
        }
    }
}
