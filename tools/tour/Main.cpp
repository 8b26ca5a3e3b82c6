// tour.exe: opens programs on the handheld, and takes pictures of Quorvane among them.
#include "tools/tour/Tour.h"

#include <cstdio>
#include <cwchar>

static constexpr int unreached = 1;
static constexpr int wrongUsage = 2;

static int Usage()
{
    fputs(
        "Usage: tour.exe --open PROGRAM ...   open Wine's own programs of these names and leave them open\n"
        "       tour.exe --pictures FOLDER    go through Quorvane and leave a picture of every state there\n",
        stderr);
    return wrongUsage;
}

int wmain(int count, wchar_t** arguments)
{
    SetProcessDPIAware();
    if (count < 3) {
        return Usage();
    }
    try {
        if (wcscmp(arguments[1], L"--open") == 0) {
            OpenPrograms({arguments + 2, arguments + count});
        } else if (wcscmp(arguments[1], L"--pictures") == 0 && count == 3) {
            Tour(arguments[2]).Run();
        } else {
            return Usage();
        }
    } catch (const TourError& error) {
        fprintf(stderr, "tour: %s\n", error.what());
        return unreached;
    }
    return 0;
}
