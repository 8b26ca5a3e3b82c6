// TasksScreen: the program on its page of running applications, used as a user does; the tests of that page
// derive from it.
#pragma once

#include "resources/ids.h"
#include "rig/Actor.h"
#include "tests/e2e/PageScreen.h"

inline constexpr int commandPreviousPage = CMD_PREVIOUS_PAGE;
inline constexpr int commandNextPage = CMD_NEXT_PAGE;
inline constexpr int commandWindowsList = CMD_WINDOWS_LIST;
inline constexpr int commandRefresh = CMD_REFRESH;
inline constexpr int commandShowTasks = CMD_SHOW_TASKS;
inline constexpr int commandInfo = CMD_APPLICATION_INFO;
inline constexpr int commandClose = CMD_CLOSE_APPLICATION;
inline constexpr int commandSwitch = CMD_SWITCH_TO_APPLICATION;
inline constexpr int commandWindowInfo = CMD_WINDOW_INFO;
inline constexpr int commandCloseAll = CMD_CLOSE_ALL;

class TasksScreen : public PageScreen
{
  protected:
    TasksScreen() : PageScreen(1, commandShowTasks) {}

    // The windows, in this order from the front, with the program before them.
    void FrontBefore(const std::vector<HWND>& windows) const;

    // Finds the row of a task and selects it.
    void SelectTask(HWND window) const;
    // The report on the selected task, after which the dialog is closed again.
    std::wstring Report() const { return ReportBy(commandInfo); }
    // The window that a report is about.
    static HWND ReportedWindow(const std::wstring& report);
    HWND SelectedTask() const { return ReportedWindow(Report()); }
    // The windows of all rows from the top.
    std::vector<HWND> Rows() const;
    std::wstring ReportOn(HWND task) const;
};

// What it takes to be a task of its own.
rig::ActorWindowSpec Task(const std::wstring& title);
