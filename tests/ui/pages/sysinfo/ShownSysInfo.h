// What the tests of the system information page start from: the program, over a scripted device.
#pragma once

#include "pages/sysinfo/CViewSysInfo.h"
#include "tests/support/ScriptedDevice.h"
#include "tests/ui/ProgramTest.h"

class ShownSysInfo : public ProgramTest
{
  protected:
    ScriptedDevice device;

    static CViewSysInfo& Page(ProgramApp& app) { return *static_cast<CViewSysInfo*>(app.views->At(1)); }
    static HWND List(ProgramApp& app) { return GetDlgItem(Page(app).Window(), IDC_LIST); }
    static void Run(ProgramApp& app, UINT command) { SendMessageW(app.MainWindow(), WM_COMMAND, command, 0); }

    // Runs a test in the program with the page shown.
    void OnPage(const std::function<void(ProgramApp&)>& test);
    static void Select(ProgramApp& app, int row);
    static void ExpectSelected(ProgramApp& app, int row);
    static int TopRow(ProgramApp& app);
    static int RowsPerPage(ProgramApp& app);
    static bool IsVisibleRow(ProgramApp& app, int row);
    // What the page answers to its list.
    static int MeasuredHeight(ProgramApp& app);
    // Pixels at 96 dpi on this screen.
    static int X(int pixels);
    static int Y(int pixels);
    // Text height and external leading.
    static int LineHeight(HFONT font);
};
