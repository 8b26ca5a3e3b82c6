// The command line of cabheader.
#pragma once

#include <string>
#include <vector>

class CommandLine
{
  public:
    enum class Action
    {
        Help,
        Members,
        Write
    };

    Action action = Action::Help;
    std::string description; // path of the description file
    std::string folder;      // where the instructions are written to

    // Throws UsageError for a call of the wrong form.
    static CommandLine Parse(const std::vector<std::string>& arguments);
    static const char* Help();
};
