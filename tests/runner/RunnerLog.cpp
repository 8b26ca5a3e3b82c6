// What the runner writes of the programs that are started while this object lives.
#include "tests/runner/RunnerLog.h"

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>

static constexpr const wchar_t* logVariable = L"QV_RUNNER_LOG";
static constexpr const wchar_t* fileName = L"log";

RunnerLog::RunnerLog()
{
    SetEnvironmentVariableW(logVariable, folder.Path(fileName).c_str());
}

RunnerLog::~RunnerLog()
{
    SetEnvironmentVariableW(logVariable, nullptr);
}

std::string RunnerLog::Of(unsigned long process) const
{
    std::ifstream file(std::filesystem::path(folder.Path(fileName) + L"." + std::to_wstring(process)));
    return {std::istreambuf_iterator<char>(file), {}};
}

void StartWithout(const std::wstring& functions)
{
    SetEnvironmentVariableW(L"QV_RUNNER_WITHOUT", functions.empty() ? nullptr : functions.c_str());
}
