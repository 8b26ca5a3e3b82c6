// A program that a test starts, and that ends with the object.
#include "tests/support/ChildProgram.h"

#include <gtest/gtest.h>

#include <string>

ChildProgram::ChildProgram(const wchar_t* program, Start start)
{
    constexpr DWORD patience = 30000; // milliseconds
    std::wstring commandLine = program;
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES; // none: it must not hold this process's output open
    const DWORD flags = start == Start::Suspended ? CREATE_SUSPENDED : 0;
    EXPECT_TRUE(CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, flags, nullptr, nullptr,
                               &startup, &process))
        << "error " << GetLastError();
    if (start == Start::Running) {
        EXPECT_EQ(WaitForInputIdle(process.hProcess, patience), 0u);
    }
}

ChildProgram::~ChildProgram()
{
    End();
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

// By the system's own function: the substitute's may be told to refuse.
void ChildProgram::End()
{
    using Terminate = BOOL(WINAPI*)(HANDLE, UINT);
    const auto terminate = reinterpret_cast<Terminate>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "TerminateProcess")));
    terminate(process.hProcess, 0);
    WaitForSingleObject(process.hProcess, 5000);
}
