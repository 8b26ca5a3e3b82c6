// The command line of cabheader.
#include "tools/cabheader/CommandLine.h"

#include "tools/common/Refusal.h"

CommandLine CommandLine::Parse(const std::vector<std::string>& arguments)
{
    CommandLine result;
    if (arguments.empty()) {
        throw UsageError("no arguments");
    }
    if (arguments[0] == "--help") {
        return result;
    }
    const bool members = arguments[0] == "--members";
    if (!members && arguments[0].starts_with("-")) {
        throw UsageError("unknown option '" + Printable(arguments[0]) + "'");
    }
    if (arguments.size() != 2 || arguments[0].empty() || arguments[1].empty()) {
        throw UsageError("two arguments are needed");
    }
    result.action = members ? Action::Members : Action::Write;
    result.description = arguments[members ? 1 : 0];
    result.folder = members ? "" : arguments[1];
    return result;
}

const char* CommandLine::Help()
{
    return "Usage: cabheader DESCRIPTION FOLDER\n"
           "       cabheader --members DESCRIPTION\n"
           "       cabheader --help\n"
           "Writes into FOLDER the two kinds of instructions of a Windows CE installation cabinet, or lists "
           "the\n"
           "files of the cabinet in their order: the name in the cabinet, a tab, the name on the device.\n"
           "Exit code: 0 done, 1 a file was refused, 2 wrong call.\n";
}
