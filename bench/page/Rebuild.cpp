// The rebuild of a page's list against the bare platform calls.
#include "bench/page/BareProcesses.h"
#include "bench/page/BareRebuild.h"
#include "bench/page/InTurn.h"
#include "bench/page/Measurements.h"

namespace bench {

static constexpr double budget = 1.10;

// False, with a complaint, when the two do not find the same number of things.
static bool FoundTheSame(const char* things, size_t byPage, size_t byCalls)
{
    if (byPage != byCalls) {
        std::fprintf(stderr, "bench_page: the page lists %u %s, the bare calls find %u\n",
                     static_cast<unsigned>(byPage), things, static_cast<unsigned>(byCalls));
    }
    return byPage == byCalls;
}

bool MeasureRebuild(BenchApp& app, int windows)
{
    CViewTasks& page = app.Tasks();
    BareRebuild bare(BenchApp::ListOf(page));
    const auto ofPage = [&] { page.FillList(-1); };
    const auto calls = [&] { bare.Run(); };
    WarmUp(ofPage, calls);
    if (!FoundTheSame("tasks", page.TaskCount(), bare.TaskCount())) {
        return false;
    }
    MeasureInTurn("Rebuild with " + std::to_string(windows) + " windows / bare calls", budget, ofPage, calls,
                  page.TaskCount());
    return true;
}

bool MeasureProcesses(BenchApp& app)
{
    CViewProcs& page = app.Procs();
    BareProcesses bare(BenchApp::ListOf(page));
    const auto ofPage = [&] { page.FillContents(0); };
    const auto calls = [&] { bare.Run(); };
    WarmUp(ofPage, calls);
    if (!FoundTheSame("processes", page.ProcessCount(), bare.Count())) {
        return false;
    }
    MeasureInTurn("Rebuild with " + std::to_string(page.ProcessCount()) + " processes / bare calls", budget,
                  ofPage, calls, page.ProcessCount());
    return true;
}

} // namespace bench
