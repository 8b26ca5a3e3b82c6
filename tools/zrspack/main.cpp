// zrspack: packs the program's pictures into the container it reads them from.
#include "tools/common/ByteView.h"
#include "tools/common/InputFile.h"
#include "tools/common/OutputFile.h"
#include "tools/common/Refusal.h"
#include "tools/common/RunTool.h"
#include "tools/zrspack/CommandLine.h"
#include "tools/zrspack/ContainerListing.h"
#include "tools/zrspack/ContainerWriter.h"
#include "tools/zrspack/PictureCheck.h"

#include <filesystem>
#include <system_error>
#include <utility>

static void Pack(const CommandLine& call)
{
    ContainerWriter container;
    for (const PackEntry& entry : call.entries) {
        std::error_code ignored;
        if (std::filesystem::equivalent(entry.file, call.file, ignored)) {
            throw Refusal::WithFile(entry.file, "is also the output");
        }
        std::vector<std::uint8_t> bytes = ReadInputFile(entry.file);
        try {
            CheckPicture(ByteView(bytes));
            container.Add(entry.id, std::move(bytes));
        } catch (const Refusal& refusal) {
            throw Refusal::WithFile(entry.file, refusal.what());
        }
    }
    // Nothing is written before every input has been found good.
    const std::vector<std::uint8_t> bytes = container.Build();
    OutputFile output(call.file);
    output.Write(bytes);
    output.Commit();
}

static void List(const std::string& file)
{
    const std::vector<std::uint8_t> bytes = ReadInputFile(file);
    std::string text;
    try {
        text = ListContainer(ByteView(bytes));
    } catch (const Refusal& refusal) {
        throw Refusal::WithFile(file, refusal.what());
    }
    Print(text);
}

static void Run(const CommandLine& call)
{
    switch (call.action) {
    case CommandLine::Action::Help:
        Print(CommandLine::Help());
        break;
    case CommandLine::Action::List:
        List(call.file);
        break;
    case CommandLine::Action::Pack:
        Pack(call);
        break;
    }
}

int main(int argc, char** argv)
{
    return RunTool<CommandLine>("zrspack", argc, argv, Run);
}
