// cabheader: writes the instructions by which a device installs the program from a cabinet.
#include "tools/cabheader/BinaryInstructions.h"
#include "tools/cabheader/CabinetMembers.h"
#include "tools/cabheader/CommandLine.h"
#include "tools/cabheader/InstallationReader.h"
#include "tools/cabheader/XmlInstructions.h"
#include "tools/common/InputFile.h"
#include "tools/common/OutputFile.h"
#include "tools/common/Refusal.h"
#include "tools/common/RunTool.h"

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
    return RunTool<CommandLine>("cabheader", argc, argv, Run);
}
