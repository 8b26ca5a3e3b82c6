// TasksScreen: the program on its page of running applications, used as a user does.
#include "tests/e2e/TasksScreen.h"

#include "resources/ids.h"
#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"

using namespace rig;

std::optional<Program> TasksScreen::program;
DWORD TasksScreen::startedAt;

static constexpr DWORD afterLateStarters =
    1500; // ms: the first showing is followed by a refresh a second later
static constexpr wchar_t handleLabel[] = L"\r\nWindow handle: 0x";

static bool AreInOrder(const std::vector<HWND>& wanted)
{
    auto next = wanted.begin();
    for (HWND window : TopWindows()) {
        if (next != wanted.end() && window == *next) {
            ++next;
        }
    }
    return next == wanted.end();
}

rig::ActorWindowSpec Task(const std::wstring& title)
{
    return {.title = title};
}

void TasksScreen::Start()
{
    program.reset();
    program.emplace(Program::Start());
    ASSERT_TRUE(program->WaitForMainWindow()) << program->WhyNoMainWindow();
    ASSERT_TRUE(program->WaitForPage(1));
    startedAt = GetTickCount();
}

bool TasksScreen::IsReady()
{
    return program && program->IsRunning() && IsWindow(Main()) && !program->Dialog() && !OpenMenu();
}

void TasksScreen::SetUp()
{
    if (!IsReady()) {
        ASSERT_NO_FATAL_FAILURE(Start());
    }
    HideNotice();
    Send(Main(), WM_COMMAND, commandShowTasks);
    ASSERT_TRUE(program->WaitForPage(1));
    list = program->List(1);
    ASSERT_TRUE(list);
    Front();
}

void TasksScreen::TearDown()
{
    // What a failed test leaves open would fail the next one too.
    if (HasFailure()) {
        program.reset();
    }
}

HWND TasksScreen::Today()
{
    for (HWND window : TopWindows()) {
        if (ClassOf(window) == L"DesktopExplorerWindow" &&
            ExecutableOf(ProcessOf(window)) == L"handheld.exe") {
            return window;
        }
    }
    return nullptr;
}

void TasksScreen::Front() const
{
    ASSERT_TRUE(Raise(Main()));
    Do(commandRefresh);
}

void TasksScreen::FrontBefore(const std::vector<HWND>& windows) const
{
    std::vector<HWND> wanted = {Main()};
    wanted.insert(wanted.end(), windows.begin(), windows.end());
    // Wine's X driver may restack windows that have just come to the front.
    ASSERT_TRUE(WaitFor([&] {
        for (auto window = wanted.rbegin(); window != wanted.rend(); ++window) {
            if (!Raise(*window)) {
                return false;
            }
        }
        return AreInOrder(wanted);
    }));
    Do(commandRefresh);
}

void TasksScreen::FrontWithoutRefreshes() const
{
    WaitFor([] { return GetTickCount() - startedAt > afterLateStarters; });
    if (GetForegroundWindow() == Main()) {
        ASSERT_TRUE(Raise(Today()));
    }
    Front();
}

void TasksScreen::Do(int command) const
{
    Send(Main(), WM_COMMAND, static_cast<WPARAM>(command));
}

void TasksScreen::Select(int row) const
{
    ASSERT_LT(row, ListCount(list));
    PressKey(VK_HOME);
    ASSERT_TRUE(WaitFor([&] { return ListMark(list) == 0; }));
    PressKey(VK_DOWN, row);
    ASSERT_TRUE(WaitFor([&] { return ListMark(list) == row; }));
}

std::wstring TasksScreen::Report() const
{
    program->Command(commandInfo);
    const HWND dialog = program->WaitForDialog();
    const HWND edit = FindDescendant(dialog, L"Edit", IDC_INFORMATION_TEXT);
    WaitFor([&] { return !TextOf(edit).empty(); });
    const std::wstring text = TextOf(edit);
    EXPECT_TRUE(CloseDialog(dialog));
    return text;
}

HWND TasksScreen::ReportedWindow(const std::wstring& report)
{
    const size_t label = report.find(handleLabel);
    if (label == std::wstring::npos) {
        return nullptr;
    }
    const size_t digits = label + wcslen(handleLabel);
    return reinterpret_cast<HWND>(static_cast<ULONG_PTR>(wcstoul(report.c_str() + digits, nullptr, 16)));
}

std::vector<HWND> TasksScreen::Rows() const
{
    std::vector<HWND> windows;
    for (int row = 0; row < ListCount(list); row++) {
        Select(row);
        windows.push_back(SelectedTask());
    }
    return windows;
}

void TasksScreen::SelectTask(HWND window) const
{
    for (int row = 0; row < ListCount(list); row++) {
        Select(row);
        if (SelectedTask() == window) {
            return;
        }
    }
    FAIL() << "no row of that window";
}

std::wstring TasksScreen::ReportOn(HWND task) const
{
    SelectTask(task);
    return Report();
}

bool TasksScreen::CloseDialog(HWND dialog, int command)
{
    PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(command), 0);
    return WaitFor([=] { return !IsWindow(dialog) && GetForegroundWindow() == Main(); });
}

HWND TasksScreen::WaitForNotice()
{
    return WaitFor([] { return program->Notice(); });
}

void TasksScreen::HideNotice()
{
    if (const HWND notice = program->Notice()) {
        Send(notice, WM_LBUTTONDOWN);
    }
}
