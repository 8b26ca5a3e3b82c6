// BenchApp: the program with its pages, which measures itself from inside its message loop and then ends.
#pragma once

#include "app/CApp.h"
#include "pages/procs/CViewProcs.h"
#include "pages/start/CViewStart.h"
#include "pages/sysinfo/CViewSysInfo.h"
#include "pages/tasks/CViewTasks.h"

#include "resources/ids.h"

#include <functional>

class BenchApp : public CApp
{
    std::function<void(BenchApp&)> body;

    static constexpr UINT messageBody = WM_APP + 300;

  public:
    explicit BenchApp(std::function<void(BenchApp&)> measurements) : body(std::move(measurements)) {}

    // The program's own start, with its title, icon and accelerators.
    int Start();

    CViewTasks& Tasks() { return *static_cast<CViewTasks*>(FindView(PageTasks)); }
    CViewSysInfo& SysInfo() { return *static_cast<CViewSysInfo*>(FindView(PageSysInfo)); }
    CViewStart& Launcher() { return *static_cast<CViewStart*>(FindView(PageStart)); }
    CStartPrograms& StartPrograms() { return startPrograms; }
    CViewProcs& Procs() { return *static_cast<CViewProcs*>(FindView(PageProcs)); }
    static HWND ListOf(const CListPage& page) { return GetDlgItem(page.Window(), IDC_LIST); }

    bool OnCreate() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    CVireoView* FindView(int32_t id);
};
