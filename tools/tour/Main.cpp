// tour.exe: opens programs on the handheld, and takes pictures of Quorvane among them.
#include "platform/pc/common/ActiveProfile.h"
#include "tools/tour/Tour.h"

#include <cstdio>
#include <cwchar>
#include <filesystem>

static constexpr int unreached = 1;
static constexpr int wrongUsage = 2;

static int Usage()
{
    fputs(
        "Usage: tour.exe --open PROGRAM ...   open Wine's own programs of these names and leave them open\n"
        "       tour.exe --pictures FOLDER    go through Quorvane and leave a picture of every state there\n"
        "       tour.exe --comparable FOLDER PROFILE\n"
        "                                     do both under the profile and close what was opened; what no "
        "two\n"
        "                                     tours have the same is blanked, and pictures already there go "
        "first\n",
        stderr);
    return wrongUsage;
}

static void TakeComparable(const std::filesystem::path& folder, const wchar_t* profile)
{
    puts("A tour whose pictures can be compared:");
    std::filesystem::create_directories(folder);
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
        std::filesystem::remove(file);
    }
    SetEnvironmentVariableW(handheld::profileVariable, profile);
    const OpenedPrograms programs = OpenPrograms({L"regedit", L"winemine", L"notepad"});
    Tour(folder, true).Run();
}

int wmain(int count, wchar_t** arguments)
{
    SetProcessDPIAware();
    if (count < 3) {
        return Usage();
    }
    try {
        if (wcscmp(arguments[1], L"--open") == 0) {
            for (const auto& process : OpenPrograms({arguments + 2, arguments + count})) {
                process->Release();
            }
        } else if (wcscmp(arguments[1], L"--pictures") == 0 && count == 3) {
            Tour(arguments[2], false).Run();
        } else if (wcscmp(arguments[1], L"--comparable") == 0 && count == 4) {
            TakeComparable(arguments[2], arguments[3]);
        } else {
            return Usage();
        }
    } catch (const TourError& error) {
        fprintf(stderr, "tour: %s\n", error.what());
        return unreached;
    }
    return 0;
}
