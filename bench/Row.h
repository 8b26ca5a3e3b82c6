// One row of the table that bench/run prints: its columns, separated by tabs.
#pragma once

#include "bench/Samples.h"

#include <cstdarg>
#include <cstdio>

namespace bench {

inline constexpr double noBudget = 0;

// The median of the pairs' ratios and the middle half of them; the note is in printf's manner.
[[gnu::format(printf, 4, 5)]] inline void Row(const char* what, const Pairs& pairs, double budget,
                                              const char* note, ...)
{
    const Samples& ratios = pairs.Ratios();
    const double value = ratios.Median();
    std::printf("%s	%.3f	%.3f .. %.3f	", what, value, ratios.At(0.25), ratios.At(0.75));
    if (budget != noBudget) {
        std::printf("%.2f\t%s\t", budget, value <= budget ? "met" : "missed");
    } else {
        std::printf("-\t-\t");
    }
    va_list arguments;
    va_start(arguments, note);
    std::vprintf(note, arguments);
    va_end(arguments);
    std::printf("\n");
    std::fflush(stdout);
}

} // namespace bench
