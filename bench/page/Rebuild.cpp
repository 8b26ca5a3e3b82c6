// The rebuild of the running applications against the bare platform calls.
#include "bench/Row.h"
#include "bench/Stopwatch.h"
#include "bench/page/BareRebuild.h"
#include "bench/page/Measurements.h"

namespace bench {

static constexpr int warmUps = 5;

static double TimeOfPage(CViewTasks& page)
{
    const Stopwatch watch;
    page.FillList(-1);
    return watch.Milliseconds();
}

static double TimeOfCalls(BareRebuild& bare)
{
    const Stopwatch watch;
    bare.Run();
    return watch.Milliseconds();
}

bool MeasureRebuild(BenchApp& app, int windows)
{
    CViewTasks& page = app.Tasks();
    BareRebuild bare(app.TaskList());
    for (int i = 0; i < warmUps; i++) {
        page.FillList(-1);
        bare.Run();
    }
    if (page.TaskCount() != bare.TaskCount()) {
        std::fprintf(stderr, "bench_page: the page lists %u tasks, the bare calls find %u\n",
                     page.TaskCount(), static_cast<unsigned>(bare.TaskCount()));
        return false;
    }

    // In the order one, other, other, one, which takes out a load that rises or falls meanwhile.
    Pairs pairs;
    const Stopwatch whole;
    while (whole.Milliseconds() < rowMs) {
        double ofPage = TimeOfPage(page);
        double ofCalls = TimeOfCalls(bare);
        ofCalls += TimeOfCalls(bare);
        ofPage += TimeOfPage(page);
        pairs.Add(ofPage / 2, ofCalls / 2);
    }
    char what[80];
    std::snprintf(what, sizeof(what), "Rebuild with %d windows / bare calls", windows);
    Row(what, pairs, 1.10, "%.3f ms / %.3f ms, %u tasks, %u times", pairs.Ones().Median(),
        pairs.Others().Median(), page.TaskCount(), static_cast<unsigned>(pairs.Ratios().Count()));
    return true;
}

} // namespace bench
