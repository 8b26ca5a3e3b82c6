// TasksScreen: the program on its page of running applications, used as a user does; the tests of that page
// derive from it.
#pragma once

#include "resources/ids.h"
#include "rig/Actor.h"
#include "rig/Program.h"

#include <gtest/gtest.h>

#include <optional>

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

class TasksScreen : public testing::Test
{
  protected:
    // One program for all tests of a suite; a test that ends it gets the next one a new one.
    static std::optional<rig::Program> program;
    HWND list = nullptr;

    static void TearDownTestSuite() { program.reset(); }
    void SetUp() override;
    void TearDown() override;

    static HWND Main() { return program->MainWindow(); }
    // The handheld's home screen, a task of its own.
    static HWND Today();

    // The program in front, with a fresh list.
    void Front() const;
    // The windows, in this order from the front, with the program before them.
    void FrontBefore(const std::vector<HWND>& windows) const;
    // No refresh comes by itself for some seconds: the one that follows the program's start is over, and the
    // periodic one has just begun its interval.
    void FrontWithoutRefreshes() const;

    // Moves the selection by keys; the program is in front.
    void Select(int row) const;
    // Finds the row of a task and selects it.
    void SelectTask(HWND window) const;
    // The report on the selected task, after which the dialog is closed again.
    std::wstring Report() const;
    // The window that a report is about.
    static HWND ReportedWindow(const std::wstring& report);
    HWND SelectedTask() const { return ReportedWindow(Report()); }
    // The windows of all rows from the top.
    std::vector<HWND> Rows() const;
    std::wstring ReportOn(HWND task) const;

    // Gives a command and waits until it is carried out.
    void Do(int command) const;
    static bool CloseDialog(HWND dialog, int command = IDOK);
    static HWND WaitForNotice();
    static void HideNotice();

  private:
    static DWORD startedAt;
    static void Start();
    static bool IsReady();
};

// What it takes to be a task of its own.
rig::ActorWindowSpec Task(const std::wstring& title);
