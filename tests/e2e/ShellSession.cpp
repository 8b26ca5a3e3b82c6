// ShellSession: Quorvane running in front, where the end-to-end tests of the shell begin.
#include "tests/e2e/ShellSession.h"

#include "resources/ids.h"
#include "rig/Actor.h"
#include "rig/Controls.h"
#include "rig/Picture.h"
#include "tests/e2e/ScreenReport.h"

using namespace rig;

ShellSession::ShellSession()
{
    SetProcessDPIAware();
}

ShellSession::~ShellSession()
{
    if (HasFailure()) {
        ReportEnd(program);
    }
}

void ShellSession::StartProgram(const std::wstring& arguments, const std::wstring& folder)
{
    program.reset(); // before the next one is started
    program.emplace(Program::Start(arguments, folder));
}

void ShellSession::Launch(const std::wstring& arguments, const std::wstring& folder)
{
    StartProgram(arguments, folder);
    main = program->WaitForMainWindow();
    EXPECT_TRUE(main) << program->WhyNoMainWindow();
}

void ShellSession::SetUp()
{
    Launch();
    ASSERT_TRUE(main);
    ASSERT_TRUE(program->WaitForPage(TasksPage));
    ASSERT_TRUE(WaitFor([&] { return GetForegroundWindow() == main; })) << "it did not come to the front";
}

bool ShellSession::InFront(HWND window) const
{
    return WaitFor([=] { return GetForegroundWindow() == window; });
}

void ShellSession::ExpectKeysReachThePage(int page) const
{
    ASSERT_TRUE(InFront(main));
    EXPECT_EQ(page, program->VisiblePage());
    // The program translates these keys wherever the focus is; what has the focus gets the others.
    const HWND box = SearchBox(page);
    const HWND keyboard = box ? box : program->List(page);
    EXPECT_TRUE(WaitFor([&] { return FocusOf(main) == keyboard; })) << "the page has not got the focus";
    PressKey(VK_RIGHT);
    EXPECT_TRUE(program->WaitForPage(PageAfter(page, 1))) << "the key did not reach page " << page;
    PressKey(VK_LEFT);
    EXPECT_TRUE(program->WaitForPage(page)) << "the key did not reach the page after page " << page;
}

void ShellSession::ExpectEnd(DWORD code) const
{
    const std::optional<DWORD> ended = program->ExitCode(patience);
    ASSERT_TRUE(ended) << "the program does not end";
    EXPECT_EQ(code, *ended);
}

// That refresh is seen by a task that has come up silently before it.
int ShellSession::SettledCount() const
{
    const HWND list = program->List(TasksPage);
    const auto refreshed = [&] {
        Send(main, WM_COMMAND, RefreshCommand);
        return ListCount(list);
    };
    const int before = refreshed();
    const Actor actor;
    const HWND window = actor.Make({.style = WS_POPUP});
    ShowWindowAsync(window, SW_SHOWNA);
    EXPECT_TRUE(WaitFor([=] { return ListCount(list) == before + 1; }))
        << "no refresh after the first showing";
    actor.Vanish(window);
    EXPECT_EQ(before, refreshed());
    return before;
}

HWND ShellSession::SearchBox(int page) const
{
    return GetDlgItem(program->Page(page), IDC_SEARCH);
}

int ShellSession::StripHeight(int page) const
{
    const HWND box = SearchBox(page);
    const LONG end = box ? ScreenRectOf(box).top - Scaled(4) : ScreenRectOf(program->List(page)).top;
    return end - ScreenRectOf(program->Page(page)).top;
}

POINT ShellSession::StripPoint(int page, int x) const
{
    return PointIn(program->Page(page), x, StripHeight(page) / 2);
}

HWND ShellSession::PressMenuKey() const
{
    PressKey(VK_F2);
    return WaitFor([] { return OpenMenu(); });
}

void ShellSession::MenuKeys(WORD key, int times) const
{
    ASSERT_TRUE(OpenMenu()) << "no menu is open for the key " << key;
    PressKey(key, times);
}

HWND ShellSession::OpenReport(int command) const
{
    program->Command(command);
    return WaitFor([&] {
        const HWND dialog = program->Dialog();
        return dialog && GetDlgItem(dialog, IDC_INFORMATION_TEXT) ? dialog : nullptr;
    });
}

std::wstring ShellSession::ReportText(HWND dialog)
{
    return TextOf(GetDlgItem(dialog, IDC_INFORMATION_TEXT));
}

HWND ShellSession::OpenWindowsList() const
{
    program->Command(WindowsListCommand);
    return WaitFor([&] {
        const HWND dialog = program->Dialog();
        const HWND tree = dialog ? GetDlgItem(dialog, IDC_WINDOWS_TREE) : nullptr;
        return tree && TreeItems(tree).size() > 1 ? dialog : nullptr;
    });
}

int Scaled(int n)
{
    static const int dpi = [] {
        const HDC screen = GetDC(nullptr);
        const int result = GetDeviceCaps(screen, LOGPIXELSX);
        ReleaseDC(nullptr, screen);
        return result;
    }();
    return (n * dpi + 48) / 96;
}

RECT ScreenRect()
{
    return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

HWND BarOf(HWND owner)
{
    return FindTopWindow({.className = L"menu_worker", .owner = owner});
}

POINT SoftKeyPoint(HWND bar, int key)
{
    const RECT rect = ScreenRectOf(bar);
    const LONG width = rect.right - rect.left;
    return {rect.left + width / 4 + key * width / 2, (rect.top + rect.bottom) / 2};
}

int PageAfter(int page, int steps)
{
    int place = 0;
    while (pageRing[place] != page) {
        place++;
    }
    return pageRing[(place + steps + 4) % 4];
}
