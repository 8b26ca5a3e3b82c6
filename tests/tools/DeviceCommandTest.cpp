// How ./device answers help, wrong calls and files that cannot be read. None of these calls builds anything.
#include "tests/tools/Program.h"
#include "tests/tools/TempFolder.h"

#include <gtest/gtest.h>

static ProgramResult RunDevice(const TempFolder& folder, std::vector<std::string> arguments)
{
    std::vector<std::string> call = {"QV_BUILDS=" + folder.Path("builds"), QV_SOURCE_ROOT "/device"};
    call.insert(call.end(), arguments.begin(), arguments.end());
    return RunProgram("/usr/bin/env", call);
}

TEST(DeviceCommandTest, HelpShowsTheUsageAndSucceeds)
{
    const TempFolder folder;
    for (const char* option : {"--help", "-h"}) {
        const ProgramResult result = RunDevice(folder, {option});
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.errors, "");
        EXPECT_EQ(result.output.rfind("Usage: ./device ", 0), 0u) << result.output;
    }
}

TEST(DeviceCommandTest, WrongCallsEndWithTwoAndTheUsage)
{
    const TempFolder folder;
    const std::string file = folder.Put("file", {'x'});
    const std::vector<std::vector<std::string>> calls = {{"--unknown"},
                                                         {"cab"},
                                                         {"--output"},
                                                         {"--output", ""},
                                                         {"--output="},
                                                         {"--sign"},
                                                         {"--sign", file},
                                                         {"--sign", file, ""},
                                                         {"--pc", "--sign", file, file}};
    for (const auto& call : calls) {
        SCOPED_TRACE(call.front());
        const ProgramResult result = RunDevice(folder, call);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.errors.rfind("device: ", 0), 0u) << result.errors;
        EXPECT_NE(result.errors.find("\nUsage: ./device "), std::string::npos) << result.errors;
        EXPECT_EQ(folder.Names(), std::vector<std::string>{"file"});
    }
}

TEST(DeviceCommandTest, AKeyThatIsNotThereIsNamed)
{
    const TempFolder folder;
    const std::string file = folder.Put("file", {'x'});
    const std::string missing = folder.Path("missing.pem");
    for (const std::vector<std::string>& call : {std::vector<std::string>{"--sign", missing, file},
                                                 std::vector<std::string>{"--sign", file, missing}}) {
        const ProgramResult result = RunDevice(folder, call);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.errors, "device: " + missing + " cannot be read\n");
    }
}

TEST(DeviceCommandTest, AnOutputFolderThatCannotBeMadeIsNamed)
{
    const TempFolder folder;
    const std::string output = folder.Put("file", {'x'}) + "/inside";
    for (const char* kind : {"--pc", "--output"}) {
        const std::vector<std::string> call = kind == std::string("--pc")
                                                  ? std::vector<std::string>{kind, "--output=" + output}
                                                  : std::vector<std::string>{kind, output};
        const ProgramResult result = RunDevice(folder, call);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.errors, "device: cannot create the folder " + output + "\n");
    }
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"file"});
}
