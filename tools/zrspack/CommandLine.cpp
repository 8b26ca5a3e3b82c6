// The packer's command line.
#include "tools/zrspack/CommandLine.h"

#include "tools/common/Refusal.h"

#include <charconv>

CommandLine CommandLine::Parse(const std::vector<std::string>& arguments)
{
    CommandLine result;
    if (arguments.empty()) {
        throw UsageError("no arguments");
    }
    if (arguments[0] == "--help") {
        return result;
    }
    if (arguments[0] == "--list") {
        if (arguments.size() != 2 || arguments[1].empty()) {
            throw UsageError("--list takes one file");
        }
        result.action = Action::List;
        result.file = arguments[1];
        return result;
    }
    if (arguments[0].empty() || arguments[0][0] == '-') {
        throw UsageError("unknown option '" + Printable(arguments[0]) + "'");
    }
    if (arguments.size() < 2) {
        throw UsageError("nothing to pack");
    }
    result.action = Action::Pack;
    result.file = arguments[0];
    for (std::size_t i = 1; i < arguments.size(); i++) {
        result.entries.push_back(ParseEntry(arguments[i]));
    }
    return result;
}

PackEntry CommandLine::ParseEntry(const std::string& argument)
{
    const std::size_t equals = argument.find('=');
    if (equals == std::string::npos || equals + 1 == argument.size()) {
        throw UsageError("'" + Printable(argument) + "' is not of the form ID=FILE");
    }
    PackEntry entry{0, argument.substr(equals + 1)};
    const char* end = argument.data() + equals;
    const auto [stop, error] = std::from_chars(argument.data(), end, entry.id);
    if (error != std::errc() || stop != end) {
        throw Refusal::WithFile(entry.file, "the id '" + Printable(argument.substr(0, equals)) +
                                                "' is not a number from 0 to 4294967295");
    }
    return entry;
}

const char* CommandLine::Help()
{
    return "Usage: zrspack OUTPUT ID=FILE [ID=FILE ...]\n"
           "       zrspack --list CONTAINER\n"
           "       zrspack --help\n"
           "Packs PNG and BMP files into a picture container, or shows what a container holds.\n"
           "Exit code: 0 done, 1 a file was refused, 2 wrong call.\n";
}
