// ShellSession: Quorvane running in front, where the end-to-end tests of the shell begin.
#pragma once

#include "resources/ids.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/Program.h"
#include "rig/WaitFor.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

enum PageNumber : int
{
    TasksPage = 1,
    SysInfoPage = 2,
    LauncherPage = 3,
    ProcsPage = 4
};

// The pages in the order of the arrows, to the right.
inline constexpr int pageRing[] = {TasksPage, LauncherPage, SysInfoPage, ProcsPage};

enum Command : int
{
    HideCommand = CMD_HIDE,
    AboutCommand = CMD_ABOUT,
    ExitCommand = CMD_EXIT,
    WindowsListCommand = CMD_WINDOWS_LIST,
    RefreshCommand = CMD_REFRESH,
    ShowTasksCommand = CMD_SHOW_TASKS,
    ShowSysInfoCommand = CMD_SHOW_SYSINFO,
    ShowProcsCommand = CMD_SHOW_PROCS,
    ApplicationInfoCommand = CMD_APPLICATION_INFO,
    ShowStartCommand = CMD_SHOW_START,
    SettingsCommand = CMD_SETTINGS,
    MemoryInfoCommand = CMD_MEMORY_INFORMATION,
    BatteryInfoCommand = CMD_BATTERY_INFORMATION,
    WindowInfoCommand = CMD_WINDOW_INFO // of the Windows list
};

class ShellSession : public testing::Test
{
  protected:
    std::optional<rig::Program> program;
    HWND main = nullptr;

    // Screen coordinates are pixels in this process too, on any profile.
    ShellSession();
    ~ShellSession() override;

    // Starts the program and waits until it is in front on its first page.
    void SetUp() override;

    // Starts it, in place of the one before; without waiting.
    void StartProgram(const std::wstring& arguments, const std::wstring& folder);
    // Starts it and waits for its main window only.
    void Launch(const std::wstring& arguments = L"", const std::wstring& folder = rig::ProgramFolder());

    bool InFront(HWND window) const;
    // Gives the program the front, as a user who switches to it.
    bool ComeToFront() const { return rig::BringToFront(main); }
    // A key that steps to the next page arrives at the page shown, and the step back too.
    void ExpectKeysReachThePage(int page) const;
    // The process ends in time with this code.
    void ExpectEnd(DWORD code = 0) const;

    // The rows of the first page once the refresh that follows its first showing is over.
    int SettledCount() const;

    // Null on the pages that have none.
    HWND SearchBox(int page) const;
    // The height of a page's title strip: what its other parts leave of the page above themselves.
    int StripHeight(int page) const;
    // On the screen, in the middle of a page's strip.
    POINT StripPoint(int page, int x) const;

    // The soft-key menu, opened by its key. Null when it does not open.
    HWND PressMenuKey() const;
    // The report that a command shows, such as the one on the program's own window, and the list of windows.
    // Null when they do not open.
    HWND OpenReport(int command = ApplicationInfoCommand) const;
    static std::wstring ReportText(HWND dialog);
    HWND OpenWindowsList() const;
    // A key of the open menu; not sent when there is none, for it would reach the page.
    void MenuKeys(WORD key, int times = 1) const;
};

// n pixels at 96 dots an inch are so many on this screen.
int Scaled(int n);
RECT ScreenRect();
// The visible soft-key bar of a window; null without one.
HWND BarOf(HWND owner);
// The middle of one of its two keys on the screen: 0 left, 1 right.
POINT SoftKeyPoint(HWND bar, int key);
int PageAfter(int page, int steps);
