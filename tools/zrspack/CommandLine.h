// The packer's command line.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct PackEntry
{
    std::uint32_t id;
    std::string file;
};

class CommandLine
{
  public:
    enum class Action
    {
        Help,
        List,
        Pack
    };

    Action action = Action::Help;
    std::string file; // the container: to be listed or to be written
    std::vector<PackEntry> entries;

    // Throws UsageError for a call of the wrong form and Refusal for an id that is no number.
    static CommandLine Parse(const std::vector<std::string>& arguments);
    static const char* Help();

  private:
    static PackEntry ParseEntry(const std::string& argument);
};
