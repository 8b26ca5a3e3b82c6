// What a profile lets the device refuse, and what every device refuses: its shell.
#include "platform/ce.h"
#include "tests/support/ChildProgram.h"
#include "tests/support/OwnProfile.h"

#include <gtest/gtest.h>

static constexpr DWORD toEnd = SYNCHRONIZE | PROCESS_TERMINATE;

class PlatformRefusalsTest : public testing::Test
{
  protected:
    static void SetUpTestSuite()
    {
        UseOwnProfile("[handheld]\n"
                      "tier = 1\n"
                      "[battery]\n"
                      "present = no\n"
                      "[process]\n"
                      "cmd.exe = refuse-open, no-heaps\n"
                      "winver.exe = refuse-end, no-module-snapshot\n"
                      "notepad.exe = no-modules\n"
                      "write.exe = hidden\n"
                      "unit_tests.exe = no-module-paths\n");
    }

    static bool IsListed(DWORD id)
    {
        const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS | TH32CS_SNAPNOHEAPS, 0);
        EXPECT_NE(snapshot, INVALID_HANDLE_VALUE);
        PROCESSENTRY32 process = {};
        process.dwSize = sizeof process;
        BOOL more = Process32First(snapshot, &process);
        while (more && process.th32ProcessID != id) {
            more = Process32Next(snapshot, &process);
        }
        EXPECT_TRUE(CloseToolhelp32Snapshot(snapshot));
        return more != FALSE;
    }

    void SetUp() override
    {
        if (!IsOnlySuite()) {
            GTEST_SKIP() << "another suite may have read the profile already; run this one alone";
        }
    }
};

TEST_F(PlatformRefusalsTest, ARefusedProcessIsNotOpened)
{
    const ChildProgram child(L"C:\\windows\\system32\\cmd.exe");
    SetLastError(0);
    EXPECT_EQ(OpenProcess(toEnd, FALSE, child.Id()), nullptr);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_ACCESS_DENIED});
}

TEST_F(PlatformRefusalsTest, AProcessThatMayNotBeEndedGoesOn)
{
    const ChildProgram child(L"C:\\windows\\system32\\winver.exe");
    const HANDLE process = OpenProcess(toEnd, FALSE, child.Id());
    ASSERT_NE(process, nullptr);
    EXPECT_FALSE(TerminateProcess(process, 0));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_ACCESS_DENIED});
    EXPECT_TRUE(child.IsRunning());
    CloseHandle(process);
}

TEST_F(PlatformRefusalsTest, AProcessWithoutAScriptIsOpenedAskedAndEnded)
{
    const ChildProgram child(L"C:\\windows\\regedit.exe");
    const HANDLE process = OpenProcess(toEnd, FALSE, child.Id());
    ASSERT_NE(process, nullptr);
    DWORD code = 0;
    EXPECT_TRUE(GetExitCodeProcess(process, &code)) << "error " << GetLastError();
    EXPECT_EQ(code, DWORD{STILL_ACTIVE});
    EXPECT_TRUE(TerminateProcess(process, 5));
    EXPECT_EQ(WaitForSingleObject(process, 5000), DWORD{WAIT_OBJECT_0});
    EXPECT_TRUE(GetExitCodeProcess(process, &code));
    EXPECT_EQ(code, 5u);
    CloseHandle(process);
}

TEST_F(PlatformRefusalsTest, TheShellIsNotOpenedToBeEnded)
{
    DWORD shell = 0;
    const HWND bar = FindWindowW(L"Shell_TrayWnd", nullptr);
    ASSERT_NE(bar, nullptr);
    GetWindowThreadProcessId(bar, &shell);
    SetLastError(0);
    EXPECT_EQ(OpenProcess(toEnd, FALSE, shell), nullptr);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_ACCESS_DENIED});
    const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, shell);
    EXPECT_NE(process, nullptr) << "it may be waited for";
    CloseHandle(process);
}

TEST_F(PlatformRefusalsTest, ADeviceOfOneTierSaysSoWhateverFailed)
{
    DWORD value = 7;
    SetLastError(ERROR_ACCESS_DENIED);
    EXPECT_EQ(QueryPolicy(4123, &value), S_OK);
    EXPECT_EQ(value, 1u);
}

TEST_F(PlatformRefusalsTest, ADeviceWithoutABatteryTellsNothing)
{
    SYSTEM_POWER_STATUS_EX status = {};
    status.BatteryLifePercent = 12;
    EXPECT_FALSE(GetSystemPowerStatusEx(&status, TRUE));
    EXPECT_EQ(status.BatteryLifePercent, 12);
}

TEST_F(PlatformRefusalsTest, AHiddenProcessIsPassedOver)
{
    const ChildProgram hidden(L"C:\\windows\\system32\\write.exe");
    const ChildProgram shown(L"C:\\windows\\system32\\cmd.exe");
    const ChildProgram last(L"C:\\windows\\system32\\write.exe");
    EXPECT_FALSE(IsListed(hidden.Id()));
    EXPECT_TRUE(IsListed(shown.Id()));
    EXPECT_FALSE(IsListed(last.Id()));
    EXPECT_TRUE(IsListed(GetCurrentProcessId()));
}

TEST_F(PlatformRefusalsTest, HeapsCanBeRefused)
{
    const ChildProgram child(L"C:\\windows\\system32\\cmd.exe");
    EXPECT_EQ(CreateToolhelp32Snapshot(TH32CS_SNAPHEAPLIST, child.Id()), INVALID_HANDLE_VALUE);
}

TEST_F(PlatformRefusalsTest, ASnapshotOfModulesCanBeRefused)
{
    const ChildProgram child(L"C:\\windows\\system32\\winver.exe", ChildProgram::Start::Running);
    EXPECT_EQ(CreateToolhelp32Snapshot(TH32CS_SNAPMODULE | TH32CS_SNAPNOHEAPS, child.Id()),
              INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_ACCESS_DENIED});
}

TEST_F(PlatformRefusalsTest, ASnapshotCanBeWithoutModules)
{
    const ChildProgram child(L"C:\\windows\\system32\\notepad.exe", ChildProgram::Start::Running);
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPMODULE | TH32CS_SNAPNOHEAPS, child.Id());
    ASSERT_NE(snapshot, INVALID_HANDLE_VALUE);
    MODULEENTRY32 module = {};
    module.dwSize = sizeof module;
    EXPECT_FALSE(Module32First(snapshot, &module));
    EXPECT_TRUE(CloseToolhelp32Snapshot(snapshot));
}

TEST_F(PlatformRefusalsTest, ModulesCanBeWithoutPaths)
{
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPMODULE | TH32CS_SNAPNOHEAPS, 0);
    ASSERT_NE(snapshot, INVALID_HANDLE_VALUE);
    MODULEENTRY32 module = {};
    module.dwSize = sizeof module;
    int count = 0;
    for (BOOL more = Module32First(snapshot, &module); more; more = Module32Next(snapshot, &module)) {
        ++count;
        EXPECT_STRNE(module.szModule, L"");
        EXPECT_STREQ(module.szExePath, L"");
    }
    EXPECT_GT(count, 5);
    EXPECT_TRUE(CloseToolhelp32Snapshot(snapshot));
}
