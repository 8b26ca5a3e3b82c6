// Program: Quorvane under test, as a process of its own with its window on the screen.
#pragma once

#include "rig/ChildProcess.h"

#include <memory>
#include <optional>
#include <string>

namespace rig {

inline constexpr wchar_t mainWindowClass[] = L"QuorvaneApp";
inline constexpr wchar_t mainWindowTitle[] = L"Quorvane";

class Program
{
    Program() = default;

    std::unique_ptr<ChildProcess> started; // null when the test has only joined a running one
    DWORD process = 0;
    HWND main = nullptr;

  public:
    // Starts it with what follows its name in the command line. From another folder than the build's when a
    // test has spoilt a copy of the program's files (see ProgramCopy). Not while the window of an earlier one
    // is there, which it would take for a running instance.
    static Program Start(const std::wstring& arguments = L"", const std::wstring& folder = ProgramFolder());
    // One that something else has started; its main window is null when none is running.
    static Program Running();
    ~Program();
    Program(Program&&) = default;
    Program& operator=(Program&&) = delete;

    // Waits for the main window; null when the process ends before or never shows one.
    HWND WaitForMainWindow();
    // Why there is no main window, as far as that can be seen from outside.
    std::string WhyNoMainWindow() const;
    HWND MainWindow() const { return main; }
    DWORD Process() const { return process; }
    bool IsRunning() const;
    std::optional<DWORD> ExitCode(std::chrono::milliseconds timeout) const;

    // As a menu or a soft key gives it; returns before it is carried out.
    void Command(int id) const;

    // The page with this number and its list; null when there is none.
    HWND Page(int number) const;
    HWND List(int number) const;
    // The page that is shown, 1 to 4; 0 without one.
    int VisiblePage() const;
    bool WaitForPage(int number) const;

    // The front-most visible dialog; null without one.
    HWND Dialog() const;
    HWND WaitForDialog() const;
    // The timed notice while it is shown; null otherwise.
    HWND Notice() const;
};

} // namespace rig
