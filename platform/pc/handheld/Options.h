// The command line of handheld.exe.
#pragma once

#include <string>
#include <vector>

struct Options
{
    enum class Action
    {
        Run,
        Wait, // until a handheld is up
        End,  // the handheld that is up
        ListKeys,
        Help
    };

    Action action = Action::Run;
    std::wstring profile; // path of the profile file; empty for the default
    std::wstring ready;   // path of a file to create as soon as the screen stands; empty for none
};

extern const wchar_t optionsHelp[];

// arguments: without the program's name. False for anything that is not an option.
bool ParseOptions(const std::vector<std::wstring>& arguments, Options& options);
