// Runs the packer in its own process.
#include "tests/tools/Packer.h"

PackerResult RunPacker(const std::vector<std::string>& arguments, std::size_t largestFile)
{
    return RunProgram(QV_ZRSPACK, arguments, largestFile);
}
