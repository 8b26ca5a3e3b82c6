// The rebuild of a page's list against the bare platform calls.
#include "bench/Row.h"
#include "bench/Stopwatch.h"
#include "bench/page/BareProcesses.h"
#include "bench/page/BareRebuild.h"
#include "bench/page/Measurements.h"

namespace bench {

static constexpr int warmUps = 5;
static constexpr double budget = 1.10;

static double TimeOf(const std::function<void()>& work)
{
    const Stopwatch watch;
    work();
    return watch.Milliseconds();
}

static void WarmUp(const std::function<void()>& ofPage, const std::function<void()>& calls)
{
    for (int i = 0; i < warmUps; i++) {
        ofPage();
        calls();
    }
}

// False, with a complaint, when the two do not find the same number of things.
static bool FoundTheSame(const char* things, size_t byPage, size_t byCalls)
{
    if (byPage != byCalls) {
        std::fprintf(stderr, "bench_page: the page lists %u %s, the bare calls find %u\n",
                     static_cast<unsigned>(byPage), things, static_cast<unsigned>(byCalls));
    }
    return byPage == byCalls;
}

// In the order one, other, other, one, which takes out a load that rises or falls meanwhile.
static void MeasureInTurn(const std::string& what, const std::function<void()>& ofPage,
                          const std::function<void()>& calls, size_t found)
{
    Pairs pairs;
    const Stopwatch whole;
    while (whole.Milliseconds() < rowMs) {
        double page = TimeOf(ofPage);
        double bare = TimeOf(calls);
        bare += TimeOf(calls);
        page += TimeOf(ofPage);
        pairs.Add(page / 2, bare / 2);
    }
    Row(what.c_str(), pairs, budget, "%.3f ms / %.3f ms, %u rows, %u times", pairs.Ones().Median(),
        pairs.Others().Median(), static_cast<unsigned>(found), static_cast<unsigned>(pairs.Ratios().Count()));
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
    MeasureInTurn("Rebuild with " + std::to_string(windows) + " windows / bare calls", ofPage, calls,
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
    MeasureInTurn("Rebuild with " + std::to_string(page.ProcessCount()) + " processes / bare calls", ofPage,
                  calls, page.ProcessCount());
    return true;
}

} // namespace bench
