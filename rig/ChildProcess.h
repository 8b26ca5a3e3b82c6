// ChildProcess: a program that a test has started, ended with the test.
#pragma once

#include <windows.h>

#include <chrono>
#include <optional>
#include <string>

namespace rig {

class ChildProcess
{
    HANDLE process = nullptr;
    DWORD id = 0;
    DWORD startError = 0;

    bool Create(std::wstring commandLine, const wchar_t* folder);

  public:
    ChildProcess() = default;
    // The executable's path or, for a program of Windows, its name; its arguments as they stand in the
    // command line, and its current folder ("" keeps ours). Running() is false when it cannot be started.
    ChildProcess(const std::wstring& executable, const std::wstring& arguments,
                 const std::wstring& folder = L"");
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    DWORD Id() const { return id; }
    // The system's reason why it could not be started; 0 when it was.
    DWORD StartError() const { return startError; }
    HANDLE Handle() const { return process; }
    bool Running() const;
    // Nothing while it is running after that time.
    std::optional<DWORD> ExitCode(std::chrono::milliseconds timeout = std::chrono::milliseconds(0)) const;
    // Ends it without asking.
    void Terminate();
    // It runs on after the test.
    void Release();
};

// The folder of the test's own executable, where the program's files are too; without a backslash at its end.
std::wstring ProgramFolder();

} // namespace rig
