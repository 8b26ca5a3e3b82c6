// What the program does against what it cannot do without, measured in turn.
#include "bench/page/InTurn.h"

#include "bench/Row.h"
#include "bench/Stopwatch.h"
#include "bench/page/Measurements.h"

namespace bench {

static constexpr int warmUps = 5;

static double TimeOf(const std::function<void()>& work)
{
    const Stopwatch watch;
    work();
    return watch.Milliseconds();
}

void WarmUp(const std::function<void()>& ofPage, const std::function<void()>& calls)
{
    for (int i = 0; i < warmUps; i++) {
        ofPage();
        calls();
    }
}

// In the order one, other, other, one, which takes out a load that rises or falls meanwhile.
void MeasureInTurn(const std::string& what, double budget, const std::function<void()>& ofPage,
                   const std::function<void()>& calls, size_t rows)
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
        pairs.Others().Median(), static_cast<unsigned>(rows), static_cast<unsigned>(pairs.Ratios().Count()));
}

} // namespace bench
