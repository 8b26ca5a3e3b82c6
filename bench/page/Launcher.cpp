// The search in the launcher and the reading of the Start menu, with a thousand programs.
#include "bench/page/BareScan.h"
#include "bench/page/InTurn.h"
#include "bench/page/Measurements.h"
#include "bench/page/Shortcuts.h"
#include "startmenu/StartMenuFolder.h"

#include <cstdio>

namespace bench {

static constexpr double searchBudget = 1.25;
static constexpr double scanBudget = 1.10;
static constexpr const wchar_t* searched = L"7 of"; // a tenth of the names, and they fill the page

// One pass over the names with the comparison that the page makes, and the list painted anew.
static void SearchBare(const CRecords<SAppsList>& programs, HWND list)
{
    size_t found = 0;
    for (uint32_t i = 0; i < programs.Count(); i++) {
        CStr name(programs.At(i)->name);
        name.MakeLower();
        found += name.Find(searched, 0) != -1 ? 1u : 0u;
    }
    SendMessageW(list, LVM_SETITEMCOUNT, found, 0);
    InvalidateRect(list, nullptr, FALSE);
    UpdateWindow(list);
}

static void MeasureSearch(BenchApp& app)
{
    CViewStart& page = app.Launcher();
    HWND list = BenchApp::ListOf(page);
    SetWindowTextW(GetDlgItem(page.Window(), IDC_SEARCH), searched);
    const auto ofPage = [&] { page.OnCommand(IDC_SEARCH, EN_CHANGE, 0); };
    const auto calls = [&] { SearchBare(app.StartPrograms().Programs(), list); };
    WarmUp(ofPage, calls);
    MeasureInTurn("A letter more to search for / one pass and the painting", searchBudget, ofPage, calls,
                  page.ProgramCount());
    SetWindowTextW(GetDlgItem(page.Window(), IDC_SEARCH), L"");
}

bool MeasureLauncher(BenchApp& app)
{
    CStr folder;
    if (!StartMenuFolder(app.MainWindow(), folder)) {
        std::fputs("bench_page: there is no Start menu\n", stderr);
        return false;
    }
    const std::wstring startMenu(folder);
    const Shortcuts shortcuts(startMenu);
    app.ActivateView(PageStart);
    CStartPrograms& programs = app.StartPrograms();
    BareScan bare;
    const auto ofPage = [&] { programs.Refill(app.MainWindow()); };
    const auto calls = [&] { bare.Run(startMenu); };
    WarmUp(ofPage, calls);
    if (!shortcuts.Complete() || programs.Programs().Count() != bare.Shortcuts()) {
        std::fprintf(stderr, "bench_page: the program finds %u shortcuts, the bare calls find %u\n",
                     static_cast<unsigned>(programs.Programs().Count()),
                     static_cast<unsigned>(bare.Shortcuts()));
        return false;
    }
    MeasureInTurn("Reading the Start menu / bare calls", scanBudget, ofPage, calls, bare.Shortcuts());
    app.Launcher().FillContents(0); // the page's rows point to the programs
    MeasureSearch(app);
    return true;
}

} // namespace bench
