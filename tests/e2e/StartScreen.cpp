// StartScreen: the program on its launcher page, with a Start menu of the test's own.
#include "tests/e2e/StartScreen.h"

#include "resources/ids.h"
#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"
#include "tests/e2e/SessionProfile.h"
#include "tests/support/TempFolder.h"

#include <filesystem>
#include <fstream>

using namespace rig;

static constexpr int launcherPage = 3;

StartScreen::StartScreen() : PageScreen(launcherPage, CMD_SHOW_START)
{
    SetProcessDPIAware();
}

const std::wstring& StartScreen::Menu()
{
    static const TempFolder folder;
    static const std::wstring menu = folder.Path(L"Menu");
    return menu;
}

// The program may be reading a shortcut just then.
bool StartScreen::RemoveMenu()
{
    return WaitFor([] {
        std::error_code error;
        std::filesystem::remove_all(Menu(), error);
        return !error;
    });
}

void StartScreen::TearDownTestSuite()
{
    PageScreen::TearDownTestSuite();
    UseSessionProfile();
}

void StartScreen::SetUp()
{
    UseProfile(Menu() + L".ini", ScreenOfSession() + L"start-menu = " + Menu() + L"\nhold-ms = 400\n");
    ASSERT_TRUE(RemoveMenu());
    Shortcut(L"Notepad", L"\\Windows\\notepad.exe");
    Shortcut(L"Programs\\Calculator", L"\\Windows\\calc.exe");
    Shortcut(L"Programs\\WineMine", L"\\Windows\\system32\\winemine.exe");
    Shortcut(L"Calendar", L"\\Windows\\poutlook.exe calendar");
    if (program && program->IsRunning()) {
        Send(GetDlgItem(program->Page(launcherPage), IDC_SEARCH), WM_SETTEXT, 0,
             reinterpret_cast<LPARAM>(L""));
    }
    ASSERT_NO_FATAL_FAILURE(PageScreen::SetUp());
    box = GetDlgItem(program->Page(launcherPage), IDC_SEARCH);
    ASSERT_TRUE(box);
    ASSERT_TRUE(HasRows(4));
    ExpectUsable();
}

std::wstring StartScreen::File(const std::wstring& name, const std::string& bytes)
{
    const std::wstring path = InMenu(name);
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    const bool written = WaitFor([&] {
        std::ofstream file(path.c_str(), std::ios::binary);
        file << bytes;
        return static_cast<bool>(file.flush());
    });
    EXPECT_TRUE(written) << testing::PrintToString(path);
    return path;
}

std::wstring StartScreen::Shortcut(const std::wstring& name, const std::wstring& command)
{
    const std::string narrow(command.begin(), command.end());
    return File(name + L".lnk", std::to_string(narrow.size()) + "#" + narrow);
}

bool StartScreen::HasRows(int count) const
{
    return WaitFor([&] { return ListCount(list) == count; });
}

bool StartScreen::RowIs(int row, const std::wstring& name) const
{
    return RowShowsName(list, row, name, normal);
}

bool StartScreen::BoxHas(const std::wstring& text) const
{
    return WaitFor([&] { return TextOf(box) == text; });
}

bool StartScreen::HasMark(int row) const
{
    return WaitFor([&] { return ListMark(list) == row && ListSelected(list) == row; });
}

void StartScreen::Search(const std::wstring& text) const
{
    TypeText(text);
    EXPECT_TRUE(BoxHas(text)) << testing::PrintToString(TextOf(box));
}

bool StartScreen::ListSays(const std::wstring& text) const
{
    const RECT area = ClientRectOnScreen(list);
    const SIZE size = {area.right - area.left, area.bottom - area.top};
    const Picture expected = normal.Draw(
        size, GetSysColor(COLOR_WINDOW), GetSysColor(COLOR_WINDOWTEXT), text, {15, 0, size.cx - 15, size.cy},
        DT_CENTER | DT_VCENTER | DT_WORDBREAK | DT_NOPREFIX | DT_END_ELLIPSIS);
    return WaitFor([&] { return Picture::OfScreen(area) == expected; });
}

void StartScreen::ExpectUsable() const
{
    EXPECT_TRUE(WaitFor([&] { return GetForegroundWindow() == Main() && FocusOf(Main()) == box; }))
        << "the search box has not got the focus";
    EXPECT_TRUE(IsWindowEnabled(Main()));
    EXPECT_FALSE(program->Dialog());
    EXPECT_FALSE(OpenMenu());
    EXPECT_EQ(launcherPage, program->VisiblePage());
}

bool ComesAndGoes(const std::wstring& title)
{
    const HWND window = WaitForTopWindow({.title = title});
    if (!window || !WaitFor([=] { return GetForegroundWindow() == window; })) {
        return false;
    }
    PostMessageW(window, WM_CLOSE, 0, 0);
    return WaitFor([=] { return !IsWindow(window); });
}
