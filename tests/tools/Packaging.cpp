// Calls the functions of scripts/package.sh.
#include "tests/tools/Packaging.h"

ProgramResult RunPackaging(const std::vector<std::string>& call, const std::string& setup)
{
    std::string script = "set -euo pipefail\n";
    for (const char* file : {"common.sh", "build.sh", "package.sh"}) {
        script += "source \"$QV_SCRIPTS/" + std::string(file) + "\"\n";
    }
    script += setup + "\n\"$@\"\n";
    // The name in front of the messages comes behind -c.
    std::vector<std::string> arguments = {"QV_SCRIPTS=" QV_SOURCE_ROOT "/scripts", "/bin/bash", "-c", script,
                                          "packaging"};
    arguments.insert(arguments.end(), call.begin(), call.end());
    return RunProgram("/usr/bin/env", arguments);
}

void PutStandIns(const TempFolder& folder)
{
    folder.Put("Quorvane.exe", Noise(100000, 1));
    folder.Put("Quorvane.zrs", Noise(33333, 2));
}

ProgramResult MakeCabinet(const TempFolder& files, const std::string& cabinet, const std::string& setup,
                          const std::vector<std::string>& signing)
{
    const TempFolder work;
    std::vector<std::string> call = {
        "make_cabinet", QV_CABHEADER,      QV_SOURCE_ROOT "/packaging/quorvane.install",
        files.Path(""), work.Path("work"), cabinet};
    call.insert(call.end(), signing.begin(), signing.end());
    return RunPackaging(call, setup);
}

Bytes Noise(std::size_t size, std::uint32_t seed)
{
    Bytes bytes(size);
    for (std::uint8_t& byte : bytes) {
        seed = seed * 1664525 + 1013904223;
        byte = static_cast<std::uint8_t>(seed >> 24);
    }
    return bytes;
}
