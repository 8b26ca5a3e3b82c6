// The cabinet for a device, made of stand-ins by the functions that ./device calls.
#include "tests/tools/CabinetView.h"
#include "tests/tools/InstallPlan.h"
#include "tests/tools/Packaging.h"

#include <gtest/gtest.h>

class CabinetTest : public testing::Test
{
  protected:
    TempFolder files;
    TempFolder output;
    std::string cabinet = output.Path("Quorvane.cab");

    void SetUp() override
    {
        PutStandIns(files);
        const ProgramResult result = MakeCabinet(files, cabinet);
        ASSERT_EQ(result.exitCode, 0) << result.errors;
        EXPECT_EQ(result.errors, "");
    }
};

TEST_F(CabinetTest, MembersAreUncompressedInTheOrderAnInstallerNeeds)
{
    const std::vector<CabinetMember> members = ReadCabinet(ReadAll(cabinet));
    const std::vector<std::string> names = {"QUORVANE.000", "QUORVANE.002", "QUORVANE.001", "_setup.xml"};
    ASSERT_EQ(NamesOf(members), names);
    EXPECT_EQ(members[1].content, Noise(33333, 2));
    EXPECT_EQ(members[2].content, Noise(100000, 1));
    for (const CabinetMember& member : members) {
        EXPECT_EQ(member.date, (20u << 9) + (1u << 5) + 1) << "not 2000-01-01";
        EXPECT_EQ(member.time, 12u << 11) << "not 12:00";
        EXPECT_EQ(member.attributes, 0x20u) << "more than the archive bit";
    }
    EXPECT_EQ(output.Names(), std::vector<std::string>{"Quorvane.cab"});
}

TEST_F(CabinetTest, AnotherProgramReadsTheOriginalBytesBack)
{
    const TempFolder extracted;
    const ProgramResult tested = RunPackaging({"cabextract", "-t", cabinet});
    EXPECT_EQ(tested.exitCode, 0) << tested.output << tested.errors;
    EXPECT_EQ(tested.errors, "");
    ASSERT_EQ(RunPackaging({"cabextract", "-q", "-d", extracted.Path(""), cabinet}).exitCode, 0);
    const std::vector<std::string> names = {"QUORVANE.000", "QUORVANE.001", "QUORVANE.002", "_setup.xml"};
    ASSERT_EQ(extracted.Names(), names);
    EXPECT_EQ(ReadAll(extracted.Path("QUORVANE.001")), ReadAll(files.Path("Quorvane.exe")));
    EXPECT_EQ(ReadAll(extracted.Path("QUORVANE.002")), ReadAll(files.Path("Quorvane.zrs")));
}

TEST_F(CabinetTest, BothKindsOfInstructionsInstallTheSame)
{
    const std::vector<CabinetMember> members = ReadCabinet(ReadAll(cabinet));
    ASSERT_EQ(members.size(), 4u);
    const InstallPlan expected = {
        "application Quorvane task manager",
        "builds 0 to 3758096384",
        R"(file %CE1%\Quorvane\Quorvane.exe is number 1)",
        R"(file %CE1%\Quorvane\Quorvane.zrs is number 2)",
        R"(folder %CE1%\Quorvane)",
        "registry 0 0",
        R"(shortcut %CE11%\Quorvane.lnk to %CE1%\Quorvane\Quorvane.exe)",
        "versions 5.1 to 6.99",
    };
    EXPECT_EQ(PlanOfBinary(members[0].content), expected);
    const Bytes& xml = members[3].content;
    EXPECT_EQ(PlanOfXml(std::string(xml.begin(), xml.end())), expected);
}

TEST_F(CabinetTest, TheSameFilesGiveTheSameCabinetAnywhereAndAtAnyTime)
{
    const Bytes first = ReadAll(cabinet);
    const TempFolder elsewhere;
    PutStandIns(elsewhere);
    std::filesystem::permissions(elsewhere.Path("Quorvane.exe"), std::filesystem::perms::owner_all);
    std::filesystem::last_write_time(elsewhere.Path("Quorvane.zrs"),
                                     std::filesystem::file_time_type::clock::now() -
                                         std::chrono::hours(5000));
    const std::string other = output.Path("folder/with blanks in its name/other.cab");
    std::filesystem::create_directories(std::filesystem::path(other).parent_path());
    const ProgramResult result = MakeCabinet(
        elsewhere, other, "umask 077; export TZ=Asia/Tokyo LC_ALL=C.UTF-8 SOURCE_DATE_EPOCH=1; cd /");
    ASSERT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(ReadAll(other), first);
    EXPECT_EQ(std::filesystem::status(other).permissions(), std::filesystem::perms(0644));
}

TEST_F(CabinetTest, AnOlderCabinetIsReplaced)
{
    const Bytes first = ReadAll(cabinet);
    files.Put("Quorvane.exe", {1, 2, 3});
    ASSERT_EQ(MakeCabinet(files, cabinet).exitCode, 0);
    const std::vector<CabinetMember> members = ReadCabinet(ReadAll(cabinet));
    const Bytes program = {1, 2, 3};
    EXPECT_EQ(members.at(2).content, program);
}
