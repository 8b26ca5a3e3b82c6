// The substitutes give back every process they open and every snapshot that is closed.
#include "platform/ce.h"
#include "tests/support/ImportHook.h"
#include "tests/support/ObjectCounts.h"

#include <gtest/gtest.h>

static int opened;
static int closed;

static HANDLE WINAPI CountOpened(DWORD access, BOOL inherit, DWORD process)
{
    ++opened;
    using Open = HANDLE(WINAPI*)(DWORD, BOOL, DWORD);
    static const auto open = reinterpret_cast<Open>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "OpenProcess")));
    return open(access, inherit, process);
}

static BOOL WINAPI CountClosed(HANDLE handle)
{
    ++closed;
    using Close = BOOL(WINAPI*)(HANDLE);
    static const auto close = reinterpret_cast<Close>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "CloseHandle")));
    return close(handle);
}

class ProcessHandlesTest : public testing::Test
{
  protected:
    ProcessHandlesTest() { opened = closed = 0; }

    static void ExpectAllClosed()
    {
        EXPECT_EQ(opened, 1);
        EXPECT_EQ(closed, 1);
    }
};

TEST_F(ProcessHandlesTest, APathLeavesNoProcessOpen)
{
    const HMODULE library = GetModuleHandleW(L"coredll.dll");
    const ImportHook open(library, "OpenProcess", CountOpened);
    const ImportHook close(library, "CloseHandle", CountClosed);
    wchar_t path[MAX_PATH];
    EXPECT_GT(GetModuleFileNameW(reinterpret_cast<HMODULE>(UINT_PTR{GetCurrentProcessId()}), path, MAX_PATH),
              0u);
    ExpectAllClosed();
}

TEST_F(ProcessHandlesTest, AWalkLeavesNoProcessOpen)
{
    const auto walk = [] {
        EXPECT_TRUE(
            CloseToolhelp32Snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPHEAPLIST, GetCurrentProcessId())));
    };
    walk(); // the first one reads the handheld's profile too
    const HMODULE library = GetModuleHandleW(L"toolhelp.dll");
    const ImportHook open(library, "OpenProcess", CountOpened);
    const ImportHook close(library, "CloseHandle", CountClosed);
    walk();
    ExpectAllClosed();
}

TEST_F(ProcessHandlesTest, AClosedSnapshotLeavesNoMemory)
{
    constexpr size_t walks = 100;
    const auto walk = [] {
        const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPHEAPLIST, GetCurrentProcessId());
        EXPECT_TRUE(CloseToolhelp32Snapshot(snapshot));
        EXPECT_FALSE(CloseToolhelp32Snapshot(snapshot)) << "it is closed already";
    };
    walk();
    const size_t before = ObjectCounts::Now().heapBlocks;
    for (size_t i = 0; i < walks; i++) {
        walk();
    }
    EXPECT_LT(ObjectCounts::Now().heapBlocks, before + walks / 2);
}
