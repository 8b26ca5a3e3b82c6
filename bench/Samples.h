// Samples: repeated measurements of one thing, summed up so that a busy machine does not decide the figure.
#pragma once

#include <algorithm>
#include <vector>

namespace bench {

class Samples
{
    std::vector<double> values;

  public:
    void Add(double value) { values.push_back(value); }
    size_t Count() const { return values.size(); }

    // The value below which this part of the measurements lies; 0.5 is the median. 0 without any.
    double At(double part) const
    {
        if (values.empty()) {
            return 0;
        }
        std::vector<double> sorted = values;
        std::sort(sorted.begin(), sorted.end());
        return sorted[static_cast<size_t>(part * static_cast<double>(sorted.size() - 1) + 0.5)];
    }
    double Median() const { return At(0.5); }
};

// Two things measured in turn, so that what disturbs one disturbs the other.
class Pairs
{
    Samples ones;
    Samples others;
    Samples ratios; // of each pair

  public:
    void Add(double one, double other)
    {
        ones.Add(one);
        others.Add(other);
        if (other > 0) {
            ratios.Add(one / other);
        }
    }
    const Samples& Ones() const { return ones; }
    const Samples& Others() const { return others; }
    const Samples& Ratios() const { return ratios; }
};

} // namespace bench
