// cabheader: writes the instructions by which a device installs the program from a cabinet.
#include "tools/cabheader/BinaryInstructions.h"
#include "tools/cabheader/CabinetMembers.h"
#include "tools/cabheader/CommandLine.h"
#include "tools/cabheader/InstallationReader.h"
#include "tools/cabheader/XmlInstructions.h"
#include "tools/common/InputFile.h"
#include "tools/common/OutputFile.h"
#include "tools/common/Refusal.h"

#include <cstdio>
#include <exception>

static void Print(const std::string& text)
{
    if (std::fputs(text.c_str(), stdout) < 0 || std::fflush(stdout) != 0) {
        throw Refusal("the standard output cannot be written");
    }
}

static Installation ReadDescription(const std::string& file)
{
    const std::vector<std::uint8_t> bytes = ReadInputFile(file);
    try {
        return InstallationReader::Read(std::string(bytes.begin(), bytes.end()));
    } catch (const Refusal& refusal) {
        throw Refusal::WithFile(file, refusal.what());
    }
}

static void Write(const CommandLine& call)
{
    const Installation installation = ReadDescription(call.description);
    const std::vector<std::uint8_t> binary = WriteBinaryInstructions(installation);
    const std::string xml = WriteXmlInstructions(installation);
    OutputFile binaryFile(call.folder + "/" + installation.CabinetFile(0));
    OutputFile xmlFile(call.folder + "/" + xmlInstructionsFile);
    binaryFile.Write(binary);
    xmlFile.Write(std::vector<std::uint8_t>(xml.begin(), xml.end()));
    binaryFile.Commit();
    xmlFile.Commit();
}

static void Run(const CommandLine& call)
{
    switch (call.action) {
    case CommandLine::Action::Help:
        Print(CommandLine::Help());
        break;
    case CommandLine::Action::Members:
        Print(ListCabinetMembers(ReadDescription(call.description)));
        break;
    case CommandLine::Action::Write:
        Write(call);
        break;
    }
}

int main(int argc, char** argv)
{
    try {
        Run(CommandLine::Parse(std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc)));
        return 0;
    } catch (const UsageError& error) {
        std::fprintf(stderr, "cabheader: %s (see cabheader --help)\n", error.what());
        return 2;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "cabheader: %s\n", error.what());
        return 1;
    }
}
