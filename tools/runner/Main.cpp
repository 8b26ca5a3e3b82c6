// Runs the device's executable on the PC: started in its place and with its name and command line.
#include "tools/common/Refusal.h"
#include "tools/runner/Process.h"
#include "tools/runner/RunLog.h"
#include "tools/runner/bridges/ImportBinding.h"
#include "tools/runner/bridges/ShownProcesses.h"

#include <windows.h>

#include <exception>

// The first digit of an exception's code; a program's own have another.
static constexpr DWORD systemErrors = 0xC;

static runner::RunLog* theLog = nullptr;

static std::wstring Variable(const wchar_t* name)
{
    wchar_t value[1024];
    const DWORD length = GetEnvironmentVariableW(name, value, 1024);
    return length < 1024 ? std::wstring(value, length) : std::wstring();
}

static std::wstring OwnPath()
{
    wchar_t path[MAX_PATH];
    return std::wstring(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
}

// A fault in the runner or in a library of the host's is no finding about the guest; it ends the run all the
// same, with what was being served.
static LONG CALLBACK HostFault(EXCEPTION_POINTERS* fault)
{
    const EXCEPTION_RECORD& record = *fault->ExceptionRecord;
    if (record.ExceptionCode >> 28 != systemErrors || !theLog) {
        return EXCEPTION_CONTINUE_SEARCH;
    }
    theLog->TellFault(record.ExceptionCode, reinterpret_cast<ULONG_PTR>(record.ExceptionAddress),
                      record.NumberParameters > 1 ? record.ExceptionInformation[1] : 0);
    TerminateProcess(GetCurrentProcess(), runner::findingExitCode);
    return EXCEPTION_CONTINUE_SEARCH;
}

[[noreturn]] static void TellAbort()
{
    theLog->Tell("HOST FAULT: an exception that nobody takes");
    TerminateProcess(GetCurrentProcess(), runner::findingExitCode);
    std::abort();
}

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int)
{
    SetProcessDPIAware();
    const std::wstring path = OwnPath();
    const std::wstring name = path.substr(0, path.find_last_of(L'.'));
    runner::RunLog log(Variable(L"QV_RUNNER_LOG"));
    theLog = &log;
    AddVectoredExceptionHandler(1, HostFault);
    std::set_terminate(TellAbort);
    const std::wstring without = Variable(L"QV_RUNNER_WITHOUT");
    runner::DoWithout(std::string(without.begin(), without.end()));
    runner::ShowOnlyProcess(Variable(L"QV_RUNNER_ONLY"));
    try {
        // The substitute's: without the program's name, as a device hands it over.
        runner::RunProcess(log, name + L".arm", name + L".elf", GetCommandLineW(),
                           !Variable(L"QV_RUNNER_TRACE").empty());
    } catch (const std::exception& error) {
        log.Tell(std::string("The device's executable Quorvane.arm ") + error.what());
    }
    return runner::findingExitCode;
}
