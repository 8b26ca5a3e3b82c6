// Stopwatch: milliseconds since it was made.
#pragma once

#include <windows.h>

namespace bench {

class Stopwatch
{
    LARGE_INTEGER start;

  public:
    Stopwatch() { QueryPerformanceCounter(&start); }

    double Milliseconds() const
    {
        LARGE_INTEGER now;
        LARGE_INTEGER frequency;
        QueryPerformanceCounter(&now);
        QueryPerformanceFrequency(&frequency);
        return static_cast<double>(now.QuadPart - start.QuadPart) * 1000.0 /
               static_cast<double>(frequency.QuadPart);
    }
};

} // namespace bench
