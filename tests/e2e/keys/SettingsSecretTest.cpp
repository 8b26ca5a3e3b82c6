// The path of the settings does not stand in the executable as text.
// device's executable: pocketpc
#include "rig/ChildProcess.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

static std::string FileBytes(const std::wstring& path)
{
    std::ifstream file(std::string(path.begin(), path.end()), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

static std::string Utf16(const std::string& text)
{
    std::string bytes;
    for (const char character : text) {
        bytes += {character, '\0'};
    }
    return bytes;
}

// The program's code: beside the runner, where that stands in the executable's place.
static std::wstring CodePath()
{
    const std::wstring ofDevice = rig::ProgramFolder() + L"\\Quorvane.arm";
    return std::filesystem::exists(ofDevice) ? ofDevice : rig::ProgramFolder() + L"\\Quorvane.exe";
}

TEST(SettingsSecretTest, NeitherWideNorNarrow)
{
    const std::string program = FileBytes(CodePath());
    ASSERT_NE(program.find(Utf16("HomeKeyCommand")), std::string::npos) << "it cannot be searched so";
    // A copy that the compiler has inlined leaves pieces only.
    for (const std::string text : {"HomeKeySetting", "Software\\Quorvane", "e\\Ho"}) {
        EXPECT_EQ(program.find(text), std::string::npos) << text;
        EXPECT_EQ(program.find(Utf16(text)), std::string::npos) << text;
    }
}
