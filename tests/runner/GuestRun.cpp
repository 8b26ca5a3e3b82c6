// Runs a program for the device and reads what the runner wrote of it.
#include "tests/runner/GuestRun.h"

#include "rig/ChildProcess.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

static constexpr const wchar_t* logVariable = L"QV_RUNNER_LOG";

GuestRun::GuestRun(const std::wstring& name, const std::wstring& arguments)
{
    const TempFolder folder;
    const std::wstring prefix = folder.Path(L"log");
    SetEnvironmentVariableW(logVariable, prefix.c_str());
    const rig::ChildProcess process(rig::ProgramFolder() + L"\\" + name + L".exe", arguments);
    SetEnvironmentVariableW(logVariable, nullptr);
    const auto ended = process.ExitCode(std::chrono::seconds(20));
    EXPECT_TRUE(ended) << "it was not started (error " << process.StartError() << "), or does not end";
    exitCode = ended.value_or(0);
    std::ifstream file(std::filesystem::path(prefix + L"." + std::to_wstring(process.Id())));
    log.assign(std::istreambuf_iterator<char>(file), {});
}
