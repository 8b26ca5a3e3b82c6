// Every page on the turned screen.
#include "tools/tour/Tour.h"

#include "resources/ids.h"
#include "rig/Orientation.h"
#include "rig/Picture.h"
#include "rig/WaitFor.h"

using namespace rig;

void Tour::Turn(int orientation)
{
    Require(TurnScreen(orientation), "the screen cannot be turned");
    const bool sideways = orientation != upright;
    Require(
        WaitFor([=] { return (GetSystemMetrics(SM_CXSCREEN) > GetSystemMetrics(SM_CYSCREEN)) == sideways; }),
        "the screen has not got its other size");
    Require(
        WaitFor([&] { return ScreenRectOf(program.MainWindow()).right == GetSystemMetrics(SM_CXSCREEN); }),
        "Quorvane does not fill the turned screen");
    Require(WaitFor([] {
                return ScreenRectOf(FindWindowW(L"Shell_TrayWnd", nullptr)).right ==
                       GetSystemMetrics(SM_CXSCREEN);
            }),
            "the top bar does not fill the turned screen");
}

void Tour::ShowTurned()
{
    static constexpr struct
    {
        int page;
        int command;
        const char* picture;
    } pages[] = {{tasksPage, CMD_SHOW_TASKS, "turned-running"},
                 {sysInfoPage, CMD_SHOW_SYSINFO, "turned-sysinfo"},
                 {launcherPage, CMD_SHOW_START, "turned-start"},
                 {procsPage, CMD_SHOW_PROCS, "turned-processes"}};
    Turn(turnedBy270);
    for (const auto& each : pages) {
        GoToPage(each.page, each.command);
        Keep(each.picture);
    }
    ShowMenu("turned-menu");
    SelectProcess(L"winemine.exe"); // the handheld itself has more or fewer threads
    ShowDialog(CMD_PROCESS_DETAILS, "turned-report", HasReport);
    Turn(upright);
}
