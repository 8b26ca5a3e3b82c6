// Program: Quorvane under test, as a process of its own with its window on the screen.
#include "rig/Program.h"

#include "resources/ids.h"
#include "rig/Desktop.h"
#include "rig/WaitFor.h"

#include <sstream>
#include <vector>

namespace rig {

static constexpr wchar_t pageClassPrefix[] = L"QuorvaneV";
static constexpr wchar_t noticeClassPrefix[] = L"QuorvaneIW";
static constexpr wchar_t dialogClass[] = L"#32770";
static constexpr int lastPage = 4;
static constexpr std::chrono::milliseconds endingTime{3000};

static std::vector<HWND> MainWindows()
{
    std::vector<HWND> windows;
    for (HWND window = nullptr;
         (window = FindWindowExW(nullptr, window, mainWindowClass, nullptr)) != nullptr;) {
        windows.push_back(window);
    }
    return windows;
}

Program Program::Start(const std::wstring& arguments, const std::wstring& folder)
{
    Program program;
    if (!WaitFor([] { return MainWindows().empty(); })) {
        return program;
    }
    program.started = std::make_unique<ChildProcess>(folder + L"\\Quorvane.exe", arguments, L"C:\\");
    program.process = program.started->Id();
    return program;
}

Program Program::Running()
{
    Program program;
    program.main = FindTopWindow({.className = mainWindowClass, .title = mainWindowTitle, .visible = false});
    if (program.main) {
        program.process = ProcessOf(program.main);
    }
    return program;
}

Program::~Program()
{
    // Asked first, because an abrupt end leaves hot keys and settings as they are.
    if (IsRunning() && main && started) {
        PostMessageW(main, WM_CLOSE, 0, 0);
        started->ExitCode(endingTime);
    }
    // What a test sees next must not be of this program.
    if (started && process) {
        started.reset();
        WaitFor([&] { return !FindTopWindow({.process = process, .visible = false}); });
    }
}

HWND Program::WaitForMainWindow()
{
    if (process == 0) {
        return nullptr;
    }
    WaitFor([&] {
        main = FindTopWindow({.className = mainWindowClass, .title = mainWindowTitle, .process = process});
        return main || !IsRunning();
    });
    return main;
}

std::string Program::WhyNoMainWindow() const
{
    std::ostringstream why;
    if (!started) {
        why << "the window of an earlier program stayed";
    } else if (started->StartError() != 0) {
        why << "the process could not be started, error " << started->StartError();
    } else if (const auto code = started->ExitCode()) {
        why << "process " << process << " ended with the exit code " << *code;
    } else {
        why << "process " << process << " is running";
    }
    for (HWND window : MainWindows()) {
        why << "; there is a main window " << window << " of process " << ProcessOf(window)
            << (IsWindowVisible(window) ? ", visible" : ", hidden");
    }
    return why.str();
}

bool Program::IsRunning() const
{
    return started ? started->Running() : IsWindow(main) != FALSE;
}

std::optional<DWORD> Program::ExitCode(std::chrono::milliseconds timeout) const
{
    return started ? started->ExitCode(timeout) : std::nullopt;
}

void Program::Command(int id) const
{
    PostMessageW(main, WM_COMMAND, static_cast<WPARAM>(id), 0);
}

HWND Program::Page(int number) const
{
    return FindDescendant(main, pageClassPrefix + std::to_wstring(number));
}

HWND Program::List(int number) const
{
    return FindDescendant(Page(number), L"SysListView32", IDC_LIST);
}

int Program::VisiblePage() const
{
    for (int number = 1; number <= lastPage; number++) {
        const HWND page = Page(number);
        if (page && IsWindowVisible(page)) {
            return number;
        }
    }
    return 0;
}

bool Program::WaitForPage(int number) const
{
    return WaitFor([&] { return VisiblePage() == number; });
}

HWND Program::Dialog() const
{
    return FindTopWindow({.className = dialogClass, .process = process});
}

HWND Program::WaitForDialog() const
{
    return WaitFor([&] { return Dialog(); });
}

HWND Program::Notice() const
{
    return FindTopWindowByPrefix(noticeClassPrefix, process);
}

} // namespace rig
