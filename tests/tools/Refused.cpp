// The common check of a refusal.
#include "tests/tools/Refused.h"

#include "tests/tools/Packer.h"

#include <gtest/gtest.h>

void ExpectOneLine(const std::string& message)
{
    ExpectOneLine(message, "zrspack");
}

void ExpectRefused(const Bytes& content, const std::string& words)
{
    const TempFolder folder;
    const std::string picture = folder.Put("picture.bin", content);
    const PackerResult result = RunPacker({folder.Path("out.zrs"), "7=" + picture});
    EXPECT_EQ(result.exitCode, 1) << result.errors;
    EXPECT_EQ(result.output, "");
    ExpectOneLine(result.errors);
    EXPECT_NE(result.errors.find(picture + ": "), std::string::npos) << result.errors;
    EXPECT_NE(result.errors.find(words), std::string::npos) << "wanted: " << words << "\n" << result.errors;
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"picture.bin"});
}

void ExpectPacked(const Bytes& content)
{
    const TempFolder folder;
    const std::string picture = folder.Put("picture.bin", content);
    const PackerResult result = RunPacker({folder.Path("out.zrs"), "7=" + picture});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(result.errors, "");
    const std::vector<std::string> names{"out.zrs", "picture.bin"};
    EXPECT_EQ(folder.Names(), names);
}
