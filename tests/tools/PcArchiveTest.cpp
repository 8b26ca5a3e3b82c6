// The archive for a PC, made of stand-ins by the function that ./device --pc calls.
#include "tests/tools/Packaging.h"

#include <gtest/gtest.h>

#include <algorithm>

static const std::vector<std::string> programs = {"Quorvane.exe", "Quorvane.zrs", "aygshell.dll",
                                                  "ceshell.dll",  "coredll.dll",  "handheld.exe",
                                                  "note_prj.dll", "toolhelp.dll"};

class PcArchiveTest : public testing::Test
{
  protected:
    TempFolder bin;
    TempFolder output;
    std::string archive = output.Path("quorvane-pc.zip");

    void SetUp() override
    {
        PutAll(bin);
        const ProgramResult result = Make(bin, archive);
        ASSERT_EQ(result.exitCode, 0) << result.errors;
        EXPECT_EQ(result.errors, "");
    }

    static void PutAll(const TempFolder& folder)
    {
        for (const std::string& name : programs) {
            folder.Put(name, Bytes(name.begin(), name.end()));
        }
        std::filesystem::create_directory(folder.Path("profiles"));
        folder.Put("profiles/one.ini", {'1'});
        folder.Put("profiles/two.ini", {'2'});
        // What else lies there.
        folder.Put("tour.exe", {'x'});
        folder.Put("unit_tests.exe", {'x'});
        folder.Put("libx11_focus.so", {'x'});
        folder.Put("profiles/notes.txt", {'x'});
    }

    static ProgramResult Make(const TempFolder& folder, const std::string& file,
                              const std::string& setup = ":")
    {
        const TempFolder work;
        return RunPackaging({"make_pc_archive", folder.Path(""), work.Path("work"), file}, setup);
    }

    std::string Extracted(const std::string& name) const
    {
        const ProgramResult result = RunPackaging({"unzip", "-p", archive, "Quorvane/" + name});
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        return result.output;
    }
};

TEST_F(PcArchiveTest, HoldsWhatAPcNeedsAndNothingElse)
{
    const ProgramResult list = RunPackaging({"unzip", "-Z1", archive});
    EXPECT_EQ(
        list.output,
        "Quorvane/Quorvane.exe\nQuorvane/Quorvane.zrs\nQuorvane/README.txt\n"
        "Quorvane/aygshell.dll\nQuorvane/ceshell.dll\nQuorvane/coredll.dll\n"
        "Quorvane/handheld.exe\nQuorvane/note_prj.dll\nQuorvane/profiles/one.ini\nQuorvane/profiles/two.ini\n"
        "Quorvane/run.cmd\nQuorvane/toolhelp.dll\n");
    for (const std::string& name : programs) {
        EXPECT_EQ(Extracted(name), name);
    }
    EXPECT_EQ(Extracted("profiles/two.ini"), "2");
    EXPECT_EQ(output.Names(), std::vector<std::string>{"quorvane-pc.zip"});
}

// A library that the program has come to need must be in it.
TEST_F(PcArchiveTest, HoldsEveryLibraryTheProgramIsLinkedWith)
{
    const std::string report = RunPackaging({"x86_64-w64-mingw32-objdump", "-p", QV_BUILT_EXECUTABLE}).output;
    const std::string field = "DLL Name: ";
    int libraries = 0;
    for (std::size_t at = report.find(field); at != std::string::npos; at = report.find(field, at)) {
        at += field.size();
        const std::string name = report.substr(at, report.find('\n', at) - at);
        EXPECT_EQ(std::count(programs.begin(), programs.end(), name), 1) << name;
        libraries++;
    }
    EXPECT_GT(libraries, 0);
}

TEST_F(PcArchiveTest, HoldsNoOwnersAndFurtherTimes)
{
    const std::string report = RunPackaging({"unzip", "-Z", "-v", archive}).output;
    const std::string field = "length of extra field:";
    int files = 0;
    for (std::size_t at = report.find(field); at != std::string::npos; at = report.find(field, at + 1)) {
        EXPECT_EQ(std::stoi(report.substr(at + field.size())), 0);
        files++;
    }
    EXPECT_EQ(files, 12);
}

TEST_F(PcArchiveTest, TextsAreForWindows)
{
    for (const char* name : {"README.txt", "run.cmd"}) {
        SCOPED_TRACE(name);
        const std::string text = Extracted(name);
        const auto newlines = std::count(text.begin(), text.end(), '\n');
        EXPECT_GT(newlines, 10);
        EXPECT_EQ(std::count(text.begin(), text.end(), '\r'), newlines);
        for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 1)) {
            EXPECT_EQ(text.at(at - 1), '\r');
        }
        EXPECT_TRUE(std::all_of(text.begin(), text.end(), [](char c) { return c > 0; })) << "not ASCII";
        EXPECT_EQ(text.find("@VERSION@"), std::string::npos);
    }
    const ProgramResult version = RunPackaging(
        {"grep", "-c", R"(^#define QV_VERSION_TEXT "[0-9.]*"$)", QV_SOURCE_ROOT "/resources/version.h"});
    EXPECT_EQ(version.output, "1\n");
    EXPECT_TRUE(Extracted("README.txt").starts_with("Quorvane "));
}

TEST_F(PcArchiveTest, TheSameFilesGiveTheSameArchiveAnywhereAndAtAnyTime)
{
    const TempFolder elsewhere;
    PutAll(elsewhere);
    std::filesystem::permissions(elsewhere.Path("handheld.exe"), std::filesystem::perms::owner_all);
    std::filesystem::last_write_time(elsewhere.Path("Quorvane.zrs"),
                                     std::filesystem::file_time_type::clock::now() -
                                         std::chrono::hours(5000));
    const std::string other = output.Path("other.zip");
    const ProgramResult result =
        Make(elsewhere, other, "umask 077; export TZ=Asia/Tokyo LC_ALL=C.UTF-8; cd /");
    ASSERT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(ReadAll(other), ReadAll(archive));
}

TEST_F(PcArchiveTest, AMissingOrEmptyFileIsNamedAndAnOlderArchiveStays)
{
    const Bytes old = ReadAll(archive);
    for (const std::string& name : programs) {
        for (const bool empty : {true, false}) {
            if (empty) {
                bin.Put(name, {});
            } else {
                std::filesystem::remove(bin.Path(name));
            }
            const ProgramResult result = Make(bin, archive);
            EXPECT_EQ(result.exitCode, 1);
            ExpectOneLine(result.errors, "packaging");
            EXPECT_NE(result.errors.find(name + (empty ? " is empty" : " is missing")), std::string::npos)
                << result.errors;
            EXPECT_EQ(ReadAll(archive), old);
        }
        bin.Put(name, {'x'});
    }
}

TEST_F(PcArchiveTest, AnArchiveWithoutProfilesIsRefused)
{
    std::filesystem::remove_all(bin.Path("profiles"));
    const ProgramResult result = Make(bin, archive);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.errors.find("profiles/*.ini is missing"), std::string::npos) << result.errors;
}
