// bench_page.exe: measures the pages from inside the program.
#include "bench/page/Measurements.h"
#include "rig/Actor.h"

#include <cstdio>
#include <memory>

static constexpr int windowCounts[] = {10, 50, 200};
static constexpr int programCount = 5; // that the windows belong to

namespace {

// The other programs and their windows.
class Crowd
{
    std::vector<std::unique_ptr<rig::Actor>> programs;
    int windows = 0;

  public:
    Crowd()
    {
        for (int i = 0; i < programCount; i++) {
            programs.push_back(std::make_unique<rig::Actor>());
        }
    }

    // False when a program could not be started.
    bool GrowToPrograms(size_t count)
    {
        while (programs.size() < count) {
            programs.push_back(std::make_unique<rig::Actor>());
            if (!programs.back()->Ready()) {
                return false;
            }
        }
        return true;
    }

    // False when a window could not be made.
    bool GrowTo(int count)
    {
        rig::ActorWindowSpec spec;
        spec.place = {0, 2000, 10, 2010}; // below the screen, where they hide nothing
        for (; windows < count; windows++) {
            spec.title = L"Application " + std::to_wstring(windows + 1);
            if (!programs[static_cast<size_t>(windows % programCount)]->Make(spec)) {
                return false;
            }
        }
        return true;
    }
};

} // namespace

// Once there are more rows than the list can show.
static constexpr int repaintWindows = 50;
// With what the session itself has these are somewhat more than a hundred processes.
static constexpr size_t manyPrograms = 90;

static bool MeasureTasks(BenchApp& app, Crowd& crowd)
{
    for (int count : windowCounts) {
        if (!crowd.GrowTo(count)) {
            std::fputs("bench_page: not all windows could be made\n", stderr);
            return false;
        }
        if (!bench::MeasureRebuild(app, count)) {
            return false;
        }
        if (count == repaintWindows) {
            bench::MeasureRepaint(app.Tasks(), "row");
        }
    }
    return true;
}

// Those of the session first, then with many more.
static bool MeasureProcesses(BenchApp& app, Crowd& crowd)
{
    app.ActivateView(PageProcs);
    if (!bench::MeasureProcesses(app)) {
        return false;
    }
    if (!crowd.GrowToPrograms(manyPrograms)) {
        std::fputs("bench_page: not all programs could be started\n", stderr);
        return false;
    }
    return bench::MeasureProcesses(app);
}

static bool Measure(BenchApp& app, Crowd& crowd)
{
    if (!MeasureTasks(app, crowd)) {
        return false;
    }
    app.ActivateView(PageSysInfo);
    bench::MeasureRepaint(app.SysInfo(), "gauge");
    return bench::MeasureLauncher(app) && MeasureProcesses(app, crowd);
}

int wmain()
{
    Crowd crowd;
    bool measured = false;
    BenchApp app([&](BenchApp& running) { measured = Measure(running, crowd); });
    app.Start();
    return measured ? 0 : 1;
}
