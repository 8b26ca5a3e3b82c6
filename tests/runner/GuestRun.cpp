// Runs a program for the device and reads what the runner wrote of it.
#include "tests/runner/GuestRun.h"

#include "rig/ChildProcess.h"
#include "tests/runner/RunnerLog.h"

#include <gtest/gtest.h>

GuestRun::GuestRun(const std::wstring& name, const std::wstring& arguments)
{
    const RunnerLog runnerLog;
    const rig::ChildProcess process(rig::ProgramFolder() + L"\\" + name + L".exe", arguments);
    const auto ended = process.ExitCode(std::chrono::seconds(20));
    EXPECT_TRUE(ended) << "it was not started (error " << process.StartError() << "), or does not end";
    exitCode = ended.value_or(0);
    log = runnerLog.Of(process.Id());
}
