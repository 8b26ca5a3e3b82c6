// What the tests of the processes page start from: the program with that page shown, over processes that
// exist only in a script.
#pragma once

#include "pages/procs/CViewProcs.h"
#include "tests/support/ScriptedProcesses.h"
#include "tests/ui/ProgramTest.h"

class ProcsTest : public ProgramTest
{
  protected:
    using Names = std::vector<std::wstring>;
    using Rows = std::vector<int>;

    ScriptedProcesses system;

    // Runs a test inside the program, with the page shown.
    int OnPage(const std::function<void(ProgramApp&)>& test);
    static constexpr DWORD firstId = 0x7F000001; // no process of the PC has such a one

    // So many more: p1.exe and so on, each with a path of its own, from firstId on.
    void AddProcesses(int count);

    static CViewProcs& Page(ProgramApp& app) { return *static_cast<CViewProcs*>(app.views->At(3)); }
    static HWND List(ProgramApp& app) { return GetDlgItem(Page(app).Window(), IDC_LIST); }
    static int Count(ProgramApp& app);
    // What the records are called.
    static Names Listed(ProgramApp& app);
    // A row as the user selects it.
    static void Select(ProgramApp& app, int row);
    static void ExpectSelected(ProgramApp& app, int row);
    static void Run(ProgramApp& app, UINT command) { SendMessageW(app.MainWindow(), WM_COMMAND, command, 0); }
};
