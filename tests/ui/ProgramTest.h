// What the tests of the whole program on real windows start from: the application with its four pages, over
// tasks that the test makes.
#pragma once

#include "app/CApp.h"
#include "framework/CVireoDialog.h"
#include "framework/CVireoInfowin.h"
#include "framework/CVireoView.h"
#include "pages/tasks/CViewTasks.h"
#include "resources/ids.h"
#include "tests/ui/UiTest.h"

#include <deque>

// The program's application; the test runs inside its message loop.
class ProgramApp : public CApp
{
    std::deque<std::function<void()>> later;

  public:
    std::function<void()> body; // the application ends after it
    bool endsAfterBody = true;
    std::wstring commandLine;

    static constexpr UINT messageBody = WM_APP + 300;
    static constexpr UINT messageLater = WM_APP + 301;

    int Run();
    // The step runs when a message loop, a dialog's too, reaches it.
    void Later(std::function<void()> step);

    CViewTasks& Tasks() { return *static_cast<CViewTasks*>(views->At(0)); }
    HWND TaskList() { return GetDlgItem(Tasks().Window(), IDC_LIST); }

    bool CheckPrevInstance(HWND existingWindow, const wchar_t* line) override;
    bool OnCreate() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    using CApp::dialogs;
    using CApp::homeHeld;
    using CApp::homeKey;
    using CApp::infoWindow;
    using CApp::keyPress;
    using CApp::platform;
    using CApp::resources;
    using CApp::startPrograms;
    using CApp::views;
};

class ProgramTest : public UiTest
{
  protected:
    SPY(EnumWindows) enumWindows;
    SPY(Sleep) sleep;         // the program's waits take no time, and are written down
    std::vector<HWND> listed; // what EnumWindows finds, front-most first

    ProgramTest();
    ~ProgramTest() override;

    // Runs a test inside the program, and the program to its end.
    int InProgram(const std::function<void(ProgramApp&)>& test);
    // Runs the program; a test may do so several times.
    int Start(ProgramApp& app);
    // A task: a visible top-level window that is listed behind the others.
    HWND AddTask(const wchar_t* title, const wchar_t* className = L"QuorvaneTestTask");
    // It is no window any more, but may still be listed.
    static void EndTask(HWND task);
    void Unlist(HWND task);

    static int Mark(HWND list);
    static std::vector<int> RowsInState(HWND list, UINT state);
    static std::wstring Text(HWND window);
    // The text of the notice that is shown; empty for none.
    static std::wstring Notice(const ProgramApp& app);
};
