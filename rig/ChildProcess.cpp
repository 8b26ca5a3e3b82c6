// ChildProcess: a program that a test has started, ended with the test.
#include "rig/ChildProcess.h"

namespace rig {

namespace {

// The tests write boxes to their output instead of showing them; a program under test is to show its own.
class BoxesShown
{
    static constexpr const wchar_t* variable = L"HANDHELD_HEADLESS";
    wchar_t before[16] = {};
    bool wasSet;

  public:
    BoxesShown() : wasSet(GetEnvironmentVariableW(variable, before, 16) != 0)
    {
        SetEnvironmentVariableW(variable, nullptr);
    }
    ~BoxesShown()
    {
        if (wasSet) {
            SetEnvironmentVariableW(variable, before);
        }
    }
    BoxesShown(const BoxesShown&) = delete;
    BoxesShown& operator=(const BoxesShown&) = delete;
};

} // namespace

ChildProcess::ChildProcess(const std::wstring& executable, const std::wstring& arguments,
                           const std::wstring& folder)
{
    const BoxesShown guard;
    std::wstring commandLine = L"\"" + executable + L"\"";
    if (!arguments.empty()) {
        commandLine += L" " + arguments;
    }
    const wchar_t* const where = folder.empty() ? nullptr : folder.c_str();
    // No program has run yet when this fails, as it now and then does under Wine 8.0 on a busy machine.
    for (int tries = 0; tries < 3 && !Create(commandLine, where); tries++) {
        Sleep(100);
    }
}

bool ChildProcess::Create(std::wstring commandLine, const wchar_t* folder)
{
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION created = {};
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, folder, &startup,
                        &created)) {
        startError = GetLastError();
        return false;
    }
    CloseHandle(created.hThread);
    process = created.hProcess;
    id = created.dwProcessId;
    startError = 0;
    return true;
}

ChildProcess::~ChildProcess()
{
    Terminate();
    if (process) {
        CloseHandle(process);
    }
}

bool ChildProcess::Running() const
{
    return process && WaitForSingleObject(process, 0) == WAIT_TIMEOUT;
}

std::optional<DWORD> ChildProcess::ExitCode(std::chrono::milliseconds timeout) const
{
    DWORD code = 0;
    if (!process || WaitForSingleObject(process, static_cast<DWORD>(timeout.count())) != WAIT_OBJECT_0 ||
        !GetExitCodeProcess(process, &code)) {
        return std::nullopt;
    }
    return code;
}

void ChildProcess::Terminate()
{
    if (Running()) {
        TerminateProcess(process, 1);
        WaitForSingleObject(process, INFINITE);
    }
}

void ChildProcess::Release()
{
    if (process) {
        CloseHandle(process);
    }
    process = nullptr;
}

std::wstring ProgramFolder()
{
    wchar_t path[MAX_PATH];
    const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring whole(path, length);
    return whole.substr(0, whole.find_last_of(L'\\'));
}

} // namespace rig
