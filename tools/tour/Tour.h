// Tour: goes through the program's states as a user would and keeps a picture of each.
#pragma once

#include "rig/Program.h"

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

// A state that was not reached; what() says which, in a sentence.
class TourError : public std::runtime_error
{
  public:
    using std::runtime_error::runtime_error;
};

// Throws TourError with the complaint unless the state was reached.
void Require(bool reached, const std::string& complaint);

// The pages' numbers.
inline constexpr int tasksPage = 1;
inline constexpr int sysInfoPage = 2;
inline constexpr int launcherPage = 3;
inline constexpr int procsPage = 4;

// Whether a report's dialog has its text.
bool HasReport(HWND dialog);

class Tour
{
    std::wstring folder; // of the pictures, without a backslash at its end
    bool isComparable;   // what no two tours have the same is blanked in the pictures
    rig::Program program;

  public:
    Tour(const std::wstring& pictures, bool comparable);

    // Every state in turn; throws TourError at the first that is not reached.
    void Run();

  private:
    void ShowTasks();
    void ShowRefusedClose();
    void ShowSysInfo();
    void ShowStart();
    // What holding the stylus on the search box opens.
    void ShowSearchMenu();
    // The menu of the handheld's own button.
    void ShowStartButton();
    // Types into the search box in place of what is there.
    void Search(const wchar_t* text);
    void ShowProcs();
    void ShowKeys();
    void ShowEnding();
    // The pages, a menu and a report on the turned screen.
    void ShowTurned();
    void Turn(int orientation);

    // A row of the processes by the name of its executable.
    void SelectProcess(const wchar_t* name);
    void GoToPage(int number, int command);
    // Moves the selection of a page's list by keys until it is on this row.
    void SelectRow(int page, int row);
    // Opens a dialog by a command, waits until it is filled, keeps a picture, and closes it.
    void ShowDialog(int command, const char* picture, const std::function<bool(HWND)>& filled);
    // Opens the page's menu by its soft key, keeps a picture, and closes it.
    void ShowMenu(const char* picture);
    void CloseMenus();
    // The message box whose text begins so.
    HWND WaitForBox(const std::wstring& beginning);
    static void Answer(HWND box, int button);
    void Keep(const char* picture);
};

// Starts Wine's own programs of these names one after the other, each behind the next; throws TourError when
// one shows no window.
using OpenedPrograms = std::vector<std::unique_ptr<rig::ChildProcess>>;
OpenedPrograms OpenPrograms(const std::vector<std::wstring>& names);
