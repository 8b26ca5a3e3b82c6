// A program that a test starts, and that ends with the object.
#pragma once

#include <windows.h>

class ChildProgram
{
  public:
    enum class Start
    {
        Suspended, // it never runs: what is only there to be opened and ended
        Running    // until it waits for its user
    };

    explicit ChildProgram(const wchar_t* program, Start start = Start::Suspended);
    ChildProgram(const ChildProgram&) = delete;
    ChildProgram& operator=(const ChildProgram&) = delete;
    ~ChildProgram();

    DWORD Id() const { return process.dwProcessId; }
    bool IsRunning() const { return WaitForSingleObject(process.hProcess, 0) == WAIT_TIMEOUT; }
    void End();

  private:
    PROCESS_INFORMATION process = {};
};
