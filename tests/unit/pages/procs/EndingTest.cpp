// The fixture of the tests of ending a process.
#include "tests/unit/pages/procs/EndingTest.h"

#include <iomanip>
#include <sstream>

const HANDLE EndingTest::process = reinterpret_cast<HANDLE>(0x9D9D0);
const wchar_t* const EndingTest::hangs =
    L"box of the page, 0, End process: Process does not respond to close "
    L"message\n\nYou can terminate it.";
const wchar_t* const EndingTest::warning =
    L"box of the page, 4, Terminate process: WARNING: Terminating a process can cause undesired results "
    L"including loss of data and system instability. The process will not be given the chance to save its "
    L"state or data. Terminate the process?";

static std::wstring Hex(uint64_t number)
{
    std::wostringstream text;
    text << std::hex << number;
    return text.str();
}

EndingTest::EndingTest()
{
    host.SetMainWindow(main);
    system.Add(4, L"NK.EXE");
    system.Add(42, L"word.exe");
    box.instead = [this](HWND owner, const wchar_t* text, const wchar_t* caption, UINT type) {
        Note(std::wstring(L"box of ") + (owner == page ? L"the page, " : L"another window, ") + Hex(type) +
             L", " + caption + L": " + text);
        duringBox(box.calls.size());
        const int answer = answers.empty() ? 0 : answers.front();
        if (!answers.empty()) {
            answers.pop_front();
        }
        return answer;
    };
    policy.instead = [this](DWORD id, DWORD* value) {
        Note(L"policy " + std::to_wstring(id));
        if (SUCCEEDED(policyResult) && givesTiers) {
            *value = tiers;
        }
        return policyResult;
    };
    WatchProcess();
    WatchWindows();
    WatchNotices();
}

void EndingTest::WatchProcess()
{
    open.instead = [this](DWORD access, BOOL inherited, DWORD id) {
        Note(L"open " + Hex(access) + (inherited ? L" inherited " : L" ") + std::to_wstring(id));
        return opens ? process : nullptr;
    };
    snapshot.instead = [this](DWORD flags, DWORD id) {
        Note(L"snapshot " + Hex(flags) + L" " + std::to_wstring(id));
        return snapshot.Real(flags, id);
    };
    closeSnapshot.instead = [this](HANDLE handle) {
        Note(L"snapshot closed");
        return closeSnapshot.Real(handle);
    };
    wait.instead = [this](HANDLE handle, DWORD milliseconds) -> DWORD {
        if (handle != process) {
            return wait.Real(handle, milliseconds);
        }
        Note(L"wait " + std::to_wstring(milliseconds));
        return WAIT_TIMEOUT;
    };
    exitCode.instead = [this](HANDLE handle, DWORD* code) {
        EXPECT_EQ(handle, process);
        EXPECT_EQ(*code, lastExitCode) << "preset to 0 once";
        Note(L"exit code");
        if (exitCodes.empty()) {
            return FALSE;
        }
        *code = lastExitCode = exitCodes.front();
        exitCodes.pop_front();
        return TRUE;
    };
    terminate.instead = [this](HANDLE handle, UINT code) {
        EXPECT_EQ(handle, process);
        Note(L"terminate " + std::to_wstring(code));
        return FALSE; // what it answers does not count
    };
    close.instead = [this](HANDLE handle) {
        if (handle != process) {
            return close.Real(handle);
        }
        Note(L"close");
        return TRUE;
    };
}

void EndingTest::WatchWindows()
{
    enumerate.instead = [this](WNDENUMPROC callback, LPARAM parameter) {
        Note(L"all windows");
        return enumerate.Real(callback, parameter);
    };
    post.instead = [this](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        EXPECT_EQ(wParam, 0u);
        EXPECT_EQ(lParam, 0);
        EXPECT_EQ(message, static_cast<UINT>(WM_CLOSE));
        Note(Posted(window));
        return TRUE;
    };
    send.instead = [this](HWND, UINT, WPARAM, LPARAM) -> LRESULT {
        Note(L"sent"); // it would wait for whoever has the window
        return 0;
    };
}

// A notice is measured once and timed once.
void EndingTest::WatchNotices()
{
    draw.instead = [this](HDC, const wchar_t* text, int, RECT*, UINT) {
        Note(std::wstring(L"notice ") + text);
        return 0;
    };
    timer.instead = [this](HWND, UINT_PTR, UINT milliseconds, TIMERPROC) -> UINT_PTR {
        Note(L"for " + std::to_wstring(milliseconds));
        return 0;
    };
    place.instead = [](HWND, HWND, int, int, int, int, UINT) { return TRUE; };
}

bool EndingTest::End()
{
    lastExitCode = 0;
    calls.clear();
    box.calls.clear();
    return EndProcess(page, word);
}

std::wstring EndingTest::Posted(HWND window)
{
    return L"posted to " + Hex(reinterpret_cast<UINT_PTR>(window));
}

EndingTest::Calls EndingTest::UntilExitCode()
{
    return {Question(L"word.exe"), L"open 100001 42", L"snapshot 40000002 0",
            L"snapshot closed",    L"all windows",    L"wait 2000",
            L"exit code"};
}

EndingTest::Calls EndingTest::Joined(Calls first, const Calls& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}
