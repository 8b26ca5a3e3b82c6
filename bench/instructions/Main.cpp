// bench_counts.exe: how many instructions and calls of the platform the device's executable needs, as a
// table. With --functions the functions that most instructions are in stand below each line.
#include "tests/runner/counts/CountTable.h"
#include "tests/runner/counts/Measuring.h"

#include <cstdio>
#include <cwchar>

int wmain(int count, wchar_t** arguments)
{
    const bool withFunctions = count > 1 && std::wcscmp(arguments[1], L"--functions") == 0;
    bool complete = true;
    const auto figures = counts::MeasureAll([&](const std::string& missing) {
        std::fprintf(stderr, "bench_counts: this did not come about: %s\n", missing.c_str());
        complete = false;
    });
    std::puts(counts::TableHead().c_str());
    for (const counts::Figure& figure : figures) {
        std::puts(counts::TableLine(figure).c_str());
        for (const std::string& function : figure.functions) {
            if (withFunctions) {
                std::printf("    %s\n", function.c_str());
            }
        }
    }
    return complete ? 0 : 1;
}
