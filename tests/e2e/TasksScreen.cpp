// TasksScreen: the program on its page of running applications, used as a user does.
#include "tests/e2e/TasksScreen.h"

#include "resources/ids.h"
#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"

using namespace rig;

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
