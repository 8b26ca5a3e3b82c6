// bench_start.exe: how long Quorvane takes to show its first page, in bare windows: the time that Wine takes
// to show any window with a list. Wine's own task manager is measured the same way, and its memory too.
#include "bench/Row.h"
#include "bench/Stopwatch.h"
#include "bench/start/FirstPage.h"
#include "rig/Actor.h"
#include "rig/Desktop.h"

#include <psapi.h>

#include <cstdio>

static constexpr int warmUps = 2;
static constexpr int rounds = 21;
static constexpr double longestStart = 20000; // ms
static constexpr DWORD settlingMs = 500;      // what a program still does after its first page
static constexpr DWORD pauseMs = 200;         // for what is left of the one before
static constexpr int otherWindows = 10;       // to be listed by both task managers

namespace {

struct Start
{
    double milliseconds = 0; // 0: it never showed its page
    double privateKb = 0;
};

} // namespace

static double PrivateKb(HANDLE process)
{
    PROCESS_MEMORY_COUNTERS memory = {};
    memory.cb = sizeof(memory);
    if (!GetProcessMemoryInfo(process, &memory, sizeof(memory))) {
        return 0;
    }
    return static_cast<double>(memory.PagefileUsage) / 1024;
}

static Start Measure(const std::wstring& executable)
{
    Sleep(pauseMs);
    Start start;
    const bench::Stopwatch watch;
    const rig::ChildProcess process(executable, L"", L"C:\\");
    while (process.Running() && watch.Milliseconds() < longestStart) {
        if (ShowsFirstPage(process.Id())) {
            start.milliseconds = watch.Milliseconds();
            break;
        }
        Sleep(1);
    }
    if (start.milliseconds == 0) {
        std::fprintf(stderr, "bench_start: %ls showed no page\n", executable.c_str());
    }
    Sleep(settlingMs);
    start.privateKb = PrivateKb(process.Handle());
    return start; // the process ends here, unasked, so that it saves nothing for its next start
}

namespace {

struct Figures
{
    bench::Pairs ours;   // Quorvane and the bare window
    bench::Pairs theirs; // the other task manager and the bare window
    bench::Pairs memory; // Quorvane and the other task manager
};

} // namespace

// False when one of them did not show its page.
static bool MeasureAll(Figures& figures)
{
    for (int round = 0; round < warmUps + rounds; round++) {
        const Start bare = Measure(rig::ProgramFolder() + L"\\bench_window.exe");
        const Start ours = Measure(rig::ProgramFolder() + L"\\Quorvane.exe");
        const Start theirs = Measure(L"C:\\windows\\system32\\taskmgr.exe");
        if (ours.milliseconds == 0 || theirs.milliseconds == 0 || bare.milliseconds == 0) {
            return false;
        }
        if (round < warmUps) {
            continue;
        }
        figures.ours.Add(ours.milliseconds, bare.milliseconds);
        figures.theirs.Add(theirs.milliseconds, bare.milliseconds);
        figures.memory.Add(ours.privateKb, theirs.privateKb);
    }
    return true;
}

static bool OpenWindows(const rig::Actor& actor)
{
    rig::ActorWindowSpec spec;
    spec.place = {0, 2000, 10, 2010}; // below the screen, where they hide nothing
    for (int i = 0; i < otherWindows; i++) {
        spec.title = L"Application " + std::to_wstring(i + 1);
        if (!actor.Make(spec)) {
            return false;
        }
    }
    return true;
}

int wmain()
{
    SetProcessDPIAware();
    const rig::Actor actor;
    if (!OpenWindows(actor)) {
        std::fputs("bench_start: not all windows could be made\n", stderr);
        return 1;
    }
    Figures figures;
    if (!MeasureAll(figures)) {
        return 1;
    }
    bench::Row("Start to the first page / a bare window", figures.ours, 1.60,
               "%.0f ms / %.0f ms, %u starts of each", figures.ours.Ones().Median(),
               figures.ours.Others().Median(), static_cast<unsigned>(figures.ours.Ratios().Count()));
    bench::Row("The same of taskmgr / a bare window", figures.theirs, bench::noBudget, "%.0f ms / %.0f ms",
               figures.theirs.Ones().Median(), figures.theirs.Others().Median());
    bench::Row("Private memory / taskmgr", figures.memory, bench::noBudget, "%.0f KB / %.0f KB",
               figures.memory.Ones().Median(), figures.memory.Others().Median());
    return 0;
}
