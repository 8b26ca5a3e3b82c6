// Walks over the processes and modules of the system by the tool-help substitute.
#include "platform/ce.h"
#include "tests/support/ChildProgram.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

static constexpr DWORD processes = TH32CS_SNAPPROCESS | TH32CS_SNAPNOHEAPS;
static constexpr DWORD modules = TH32CS_SNAPMODULE | TH32CS_SNAPNOHEAPS;

// True, and the entry is the process's, when the walk comes to it.
static bool FindProcess(DWORD id, PROCESSENTRY32& entry)
{
    const HANDLE snapshot = CreateToolhelp32Snapshot(processes, 0);
    EXPECT_NE(snapshot, INVALID_HANDLE_VALUE);
    entry = {};
    entry.dwSize = sizeof entry;
    BOOL more = Process32First(snapshot, &entry);
    EXPECT_TRUE(more);
    while (more && entry.th32ProcessID != id) {
        EXPECT_EQ(entry.dwSize, sizeof entry);
        more = Process32Next(snapshot, &entry);
    }
    EXPECT_TRUE(CloseToolhelp32Snapshot(snapshot));
    return more != FALSE;
}

TEST(PlatformWalkTest, TheOwnProcessIsFound)
{
    PROCESSENTRY32 entry;
    ASSERT_TRUE(FindProcess(GetCurrentProcessId(), entry));
    EXPECT_STREQ(entry.szExeFile, L"unit_tests.exe");
    EXPECT_GE(entry.cntThreads, 1u);
}

TEST(PlatformWalkTest, AChildIsFoundWithItsParentUntilItEnds)
{
    ChildProgram child(L"C:\\windows\\system32\\cmd.exe");
    PROCESSENTRY32 entry;
    ASSERT_TRUE(FindProcess(child.Id(), entry));
    EXPECT_STREQ(entry.szExeFile, L"cmd.exe");
    EXPECT_EQ(entry.th32ParentProcessID, GetCurrentProcessId());
    child.End();
    EXPECT_FALSE(FindProcess(child.Id(), entry));
}

// The longest path that a program may have: 259 characters and the end.
TEST(PlatformWalkTest, AProgramWithTheLongestPathKeepsTheEndOfItsName)
{
    const TempFolder folder;
    std::wstring path = folder.Folder() + L"\\";
    const std::wstring name = std::wstring(259 - path.size() - 4, L'n') + L".exe";
    path += name;
    ASSERT_TRUE(CopyFileW(L"C:\\windows\\system32\\cmd.exe", path.c_str(), FALSE));
    const ChildProgram child(path.c_str());
    PROCESSENTRY32 entry;
    ASSERT_TRUE(FindProcess(child.Id(), entry));
    EXPECT_EQ(entry.szExeFile, name);
}

TEST(PlatformWalkTest, TheOwnModulesAreFound)
{
    const HANDLE snapshot = CreateToolhelp32Snapshot(modules, GetCurrentProcessId());
    ASSERT_NE(snapshot, INVALID_HANDLE_VALUE);
    MODULEENTRY32 module = {};
    module.dwSize = sizeof module;
    bool program = false;
    bool library = false;
    for (BOOL more = Module32First(snapshot, &module); more; more = Module32Next(snapshot, &module)) {
        const std::wstring name = module.szModule;
        program |= name == L"unit_tests.exe" && module.hModule == GetModuleHandleW(nullptr);
        if (name == L"coredll.dll") {
            library = true;
            wchar_t path[MAX_PATH] = {};
            GetModuleFileNameW(GetModuleHandleW(L"coredll.dll"), path, MAX_PATH);
            EXPECT_STREQ(module.szExePath, path);
            EXPECT_EQ(reinterpret_cast<HMODULE>(module.modBaseAddr), module.hModule);
            EXPECT_GT(module.modBaseSize, 0u);
            EXPECT_EQ(module.th32ProcessID, GetCurrentProcessId());
        }
    }
    EXPECT_TRUE(program);
    EXPECT_TRUE(library);
    EXPECT_TRUE(CloseToolhelp32Snapshot(snapshot));
}

TEST(PlatformWalkTest, AProcessThatHasGoneHasNoModules)
{
    EXPECT_EQ(CreateToolhelp32Snapshot(modules, 0x7FFFFFF0), INVALID_HANDLE_VALUE);
}

TEST(PlatformWalkTest, AnEntryOfAnotherSizeIsRefused)
{
    const HANDLE ofProcesses = CreateToolhelp32Snapshot(processes, 0);
    const HANDLE ofModules = CreateToolhelp32Snapshot(modules, GetCurrentProcessId());
    for (const int off : {-4, 4}) {
        PROCESSENTRY32 process = {};
        process.dwSize = static_cast<DWORD>(static_cast<int>(sizeof process) + off);
        EXPECT_FALSE(Process32First(ofProcesses, &process));
        EXPECT_FALSE(Process32Next(ofProcesses, &process));
        MODULEENTRY32 module = {};
        module.dwSize = static_cast<DWORD>(static_cast<int>(sizeof module) + off);
        EXPECT_FALSE(Module32First(ofModules, &module));
        EXPECT_FALSE(Module32Next(ofModules, &module));
        EXPECT_EQ(GetLastError(), DWORD{ERROR_INVALID_PARAMETER});
    }
    CloseToolhelp32Snapshot(ofProcesses);
    CloseToolhelp32Snapshot(ofModules);
}

TEST(PlatformWalkTest, BothWaysOfClosingEndASnapshot)
{
    PROCESSENTRY32 entry = {};
    entry.dwSize = sizeof entry;
    const HANDLE one = CreateToolhelp32Snapshot(processes, 0);
    EXPECT_TRUE(CloseHandle(one));
    EXPECT_FALSE(Process32First(one, &entry));
    const HANDLE other = CreateToolhelp32Snapshot(processes, 0);
    EXPECT_TRUE(CloseToolhelp32Snapshot(other));
    EXPECT_FALSE(Process32First(other, &entry));
}
