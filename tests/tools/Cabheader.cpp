// Runs cabheader on a description.
#include "tests/tools/Cabheader.h"

#include <stdexcept>

std::vector<std::string> GoodDescription()
{
    return {"provider = Some One", "name = Thing",          "oldest = 5.0", "newest = 6.99",
            "cabinet = TEST",      R"(folder = %CE1%\One)", "file = a.exe"};
}

std::string DescriptionWith(const std::string& key, const std::string& replacement)
{
    std::vector<std::string> lines = GoodDescription();
    for (std::string& line : lines) {
        if (line.starts_with(key + " =")) {
            line = replacement;
        }
    }
    return Joined(lines);
}

std::string Joined(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text;
}

ProgramResult RunCabheader(const std::vector<std::string>& arguments)
{
    return RunProgram(QV_CABHEADER, arguments);
}

Instructions WriteInstructions(const std::string& description)
{
    const TempFolder folder;
    const TempFolder output;
    const std::string file = folder.Put("description", Bytes(description.begin(), description.end()));
    const ProgramResult result = RunCabheader({file, output.Path("")});
    if (result.exitCode != 0 || !result.output.empty() || !result.errors.empty()) {
        throw std::runtime_error("cabheader failed: " + result.errors);
    }
    if (output.Names() != std::vector<std::string>{"TEST.000", "_setup.xml"}) {
        throw std::runtime_error("cabheader wrote other files");
    }
    const Bytes xml = ReadAll(output.Path("_setup.xml"));
    return {ReadAll(output.Path("TEST.000")), std::string(xml.begin(), xml.end())};
}
