// What the tests of ending a process start from: a system that exists only in a script, and a diary of what
// is asked of it.
#pragma once

#include "framework/CVireoApp.h"
#include "framework/CVireoInfowin.h"
#include "pages/procs/EndProcess.h"
#include "tests/support/ScriptedProcesses.h"
#include "tests/support/Spy.h"
#include "tests/unit/ScriptedWindows.h"

#include <gtest/gtest.h>

#include <deque>

class EndingTest : public testing::Test
{
  protected:
    using Calls = std::vector<std::wstring>;

    class Host : public CVireoApp
    {
        CVireoInfowin notices; // without a window of its own

      public:
        Host() { infoWindow = &notices; }
        void SetMainWindow(HWND window) { mainWindow = window; }
    };

    Host host;
    ScriptedWindows windows;
    ScriptedProcesses system;
    HWND main = windows.Add({L"Quorvane"});
    HWND page = windows.Add({L"Processes"});
    SProcIdentity word{42, CStr(L"word.exe")};

    Calls calls;
    std::deque<int> answers; // of the boxes, in order; afterwards 0
    std::function<void(size_t)> duringBox = [](size_t /*which*/) {};
    bool opens = true;
    HRESULT policyResult = S_OK;
    DWORD tiers = 1;
    bool givesTiers = true;      // false: it answers without a value
    std::deque<DWORD> exitCodes; // in order; afterwards they cannot be had
    DWORD lastExitCode = 0;      // what the program knows of it

    EndingTest();

    // Ends the process; what was asked of the system meanwhile is in calls.
    bool End();
    HWND AddWindow(DWORD processId) { return windows.Add({L"", L"W", nullptr, true, true, 0, 0, processId}); }

    // How the diary calls them.
    static std::wstring Posted(HWND window);
    static std::wstring Question(const std::wstring& name)
    {
        return L"box of the page, 4, End process: End " + name + L"?";
    }
    static const wchar_t* const hangs;
    static const wchar_t* const warning;
    // From the question, answered Yes, until the exit code was asked for; no window is posted to.
    static Calls UntilExitCode();
    static Calls Joined(Calls first, const Calls& second);

  private:
    static const HANDLE process;

    SPY(MessageBoxW) box;
    SPY(OpenProcess) open;
    SPY(CreateToolhelp32Snapshot) snapshot;
    SPY(CloseToolhelp32Snapshot) closeSnapshot;
    SPY(EnumWindows) enumerate;
    SPY(PostMessageW) post;
    SPY(SendMessageW) send;
    SPY(WaitForSingleObject) wait;
    SPY(GetExitCodeProcess) exitCode;
    SPY(TerminateProcess) terminate;
    SPY(CloseHandle) close;
    SPY(QueryPolicy) policy;
    SPY(DrawTextW) draw;
    SPY(SetTimer) timer;
    SPY(SetWindowPos) place;

    void Note(const std::wstring& call) { calls.push_back(call); }
    void WatchProcess();
    void WatchWindows();
    void WatchNotices();
};
