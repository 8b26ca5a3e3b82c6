// PageScreen: the program on one of its pages, used as a user does.
#include "tests/e2e/PageScreen.h"

#include "resources/ids.h"
#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"
#include "tests/e2e/ScreenReport.h"

using namespace rig;

std::optional<Program> PageScreen::program;
DWORD PageScreen::startedAt;

static constexpr DWORD afterLateStarters =
    1500; // ms: the first showing is followed by a refresh a second later

void PageScreen::Start()
{
    program.reset();
    program.emplace(Program::Start());
    ASSERT_TRUE(program->WaitForMainWindow()) << program->WhyNoMainWindow();
    ASSERT_TRUE(program->WaitForPage(1));
    startedAt = GetTickCount();
}

bool PageScreen::IsReady()
{
    return program && program->IsRunning() && IsWindow(Main()) && !program->Dialog() && !OpenMenu();
}

void PageScreen::SetUp()
{
    if (!IsReady()) {
        ASSERT_NO_FATAL_FAILURE(Start());
    }
    HideNotice();
    Send(Main(), WM_COMMAND, static_cast<WPARAM>(showCommand));
    ASSERT_TRUE(program->WaitForPage(number));
    list = program->List(number);
    ASSERT_TRUE(list);
    Front();
}

void PageScreen::TearDown()
{
    // What a failed test leaves open would fail the next one too.
    if (HasFailure()) {
        ReportEnd(program);
        program.reset();
    }
}

HWND PageScreen::Today()
{
    for (HWND window : TopWindows()) {
        if (ClassOf(window) == L"DesktopExplorerWindow" &&
            ExecutableOf(ProcessOf(window)) == L"handheld.exe") {
            return window;
        }
    }
    return nullptr;
}

void PageScreen::Front() const
{
    ASSERT_TRUE(Raise(Main()));
    Do(CMD_REFRESH);
}

void PageScreen::FrontWithoutRefreshes() const
{
    WaitFor([] { return GetTickCount() - startedAt > afterLateStarters; });
    if (GetForegroundWindow() == Main()) {
        ASSERT_TRUE(Raise(Today()));
        ASSERT_TRUE(WaitFor([] { return !FocusOf(Main()); })); // it has noticed
    }
    Front();
}

void PageScreen::Select(int row) const
{
    ASSERT_LT(row, ListCount(list));
    PressKey(VK_HOME);
    ASSERT_TRUE(WaitFor([&] { return ListMark(list) == 0; }));
    PressKey(VK_DOWN, row);
    ASSERT_TRUE(WaitFor([&] { return ListMark(list) == row; }));
}

void PageScreen::Choose(int item) const
{
    PressKey(VK_F2);
    ASSERT_TRUE(WaitFor([] { return OpenMenu(); }));
    PressKey(VK_DOWN, item);
    PressKey(VK_RETURN);
}

void PageScreen::Do(int command) const
{
    Send(Main(), WM_COMMAND, static_cast<WPARAM>(command));
}

std::wstring PageScreen::ReportBy(int command) const
{
    program->Command(command);
    const HWND dialog = program->WaitForDialog();
    const HWND edit = FindDescendant(dialog, L"Edit", IDC_INFORMATION_TEXT);
    WaitFor([&] { return !TextOf(edit).empty(); });
    const std::wstring text = TextOf(edit);
    EXPECT_TRUE(CloseDialog(dialog));
    return text;
}

bool PageScreen::CloseDialog(HWND dialog, int command)
{
    PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(command), 0);
    return WaitFor([=] { return !IsWindow(dialog) && GetForegroundWindow() == Main(); });
}

HWND PageScreen::WaitForNotice()
{
    return WaitFor([] { return program->Notice(); });
}

void PageScreen::HideNotice()
{
    if (const HWND notice = program->Notice()) {
        Send(notice, WM_LBUTTONDOWN);
    }
}
