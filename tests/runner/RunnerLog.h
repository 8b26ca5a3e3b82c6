// What the runner writes of the programs that are started while this object lives.
#pragma once

#include "tests/support/TempFolder.h"

#include <string>

class RunnerLog
{
    TempFolder folder;

  public:
    RunnerLog();
    ~RunnerLog();
    RunnerLog(const RunnerLog&) = delete;
    RunnerLog& operator=(const RunnerLog&) = delete;

    // Findings, and at the process's end counts; empty when it was no runner.
    std::string Of(unsigned long process) const;
};

// The programs that are started from now on miss such functions: "aygshell#84,coredll.GetX"; none when empty.
void StartWithout(const std::wstring& functions);
