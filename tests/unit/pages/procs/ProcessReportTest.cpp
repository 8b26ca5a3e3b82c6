// The plain-text report on a process.
#include "pages/procs/ProcessReport.h"
#include "tests/support/ScriptedProcesses.h"

#include <gtest/gtest.h>

class ProcessReportTest : public testing::Test
{
  protected:
    using Snapshots = std::vector<std::pair<DWORD, DWORD>>;

    ScriptedProcesses system;
    SProcInfo record;

    ProcessReportTest()
    {
        record.name = L"word.exe";
        record.id = 0x1A2B;
        record.heapBytes = 1536;
        record.threadCount = 3;
        system.Add(record.id, L"word.exe", L"\\Windows\\word.exe");
        Process().version = 0x00050001;
    }

    ScriptedProcess& Process() { return system.processes[0]; }

    std::wstring Report() const
    {
        CStr report;
        AppendProcessReport(report, record);
        return report.Buffer();
    }

    // What follows the heading of the modules.
    std::wstring Modules() const
    {
        const std::wstring report = Report();
        const std::wstring heading = L"\r\n\r\nLIST OF MODULES:\r\n\r\n";
        const size_t start = report.find(heading);
        return start == std::wstring::npos ? L"no heading" : report.substr(start + heading.size());
    }

    void ExpectLine(const std::wstring& line) const
    {
        EXPECT_NE((Report() + L"\r\n").find(L"\r\n" + line + L"\r\n"), std::wstring::npos) << Report();
    }
};

TEST_F(ProcessReportTest, ItIsTheProcessAndEachOfItsModules)
{
    Process().modules = {{L"word.exe", L"\\Windows\\word.exe", 1, 2, 102400},
                         {L"coredll.dll", L"", 0xFFFFFFFF, 0x80000000, 1023}};
    EXPECT_EQ(Report(), L"Full name:\r\n\\Windows\\word.exe"
                        L"\r\n\r\nProcess ID: 0x00001A2B"
                        L"\r\nMemory usage: 1.50 KB"
                        L"\r\nThread count: 3"
                        L"\r\nRequired OS version: 5.1"
                        L"\r\n\r\nLIST OF MODULES:\r\n\r\n"
                        L"Name: word.exe"
                        L"\r\nExePath: \\Windows\\word.exe"
                        L"\r\nGlobal usage count: 1"
                        L"\r\nProcess ref. count: 2"
                        L"\r\nSize of the module: 100 KB\r\n\r\n"
                        L"Name: coredll.dll"
                        L"\r\nGlobal usage count: 4294967295"
                        L"\r\nProcess ref. count: 2147483648"
                        L"\r\nSize of the module: 1023 B\r\n\r\n");
}

TEST_F(ProcessReportTest, ItIsAppended)
{
    CStr report(L"before ");
    AppendProcessReport(report, record);
    EXPECT_EQ(std::wstring(report.Buffer()).find(L"before Full name:\r\n"), 0u);
}

TEST_F(ProcessReportTest, TheModulesAreAskedOnceWithoutHeapsAndClosed)
{
    Process().modules = {{L"a.dll", L"", 0, 0, 0}, {L"b.dll", L"", 0, 0, 0}};
    Report();
    EXPECT_EQ(system.snapshots, (Snapshots{{0x40000008, 0x1A2B}}));
    EXPECT_EQ(system.open, 0);
    EXPECT_EQ(system.closedAsHandles, 0);
    EXPECT_FALSE(system.badRequest);
}

TEST_F(ProcessReportTest, WithoutASnapshotOfTheModulesTheRestIsThere)
{
    system.givesModules = false;
    EXPECT_EQ(Report(), L"Full name:\r\n\\Windows\\word.exe"
                        L"\r\n\r\nProcess ID: 0x00001A2B"
                        L"\r\nMemory usage: 1.50 KB"
                        L"\r\nThread count: 3"
                        L"\r\nRequired OS version: 5.1"
                        L"\r\n\r\nLIST OF MODULES:\r\n\r\n"
                        L"Can't get modules info.");
    EXPECT_EQ(system.snapshots.size(), 1u);
}

TEST_F(ProcessReportTest, WithoutAModuleTheReadingFailedAndIsClosed)
{
    EXPECT_EQ(Modules(), L"Module32First error.");
    EXPECT_EQ(system.open, 0);
    EXPECT_EQ(system.closedAsHandles, 0);
}

TEST_F(ProcessReportTest, OfAProcessThatHasGoneTheListedFactsStand)
{
    system.processes[0].id = 7;
    EXPECT_EQ(Report(), L"Full name:\r\n"
                        L"\r\n\r\nProcess ID: 0x00001A2B"
                        L"\r\nMemory usage: 1.50 KB"
                        L"\r\nThread count: 3"
                        L"\r\nRequired OS version: 0.0"
                        L"\r\n\r\nLIST OF MODULES:\r\n\r\n"
                        L"Module32First error.");
}

TEST_F(ProcessReportTest, AProcessWithoutAPathHasAnEmptyLine)
{
    Process().path = L"";
    EXPECT_EQ(Report().find(L"Full name:\r\n\r\n\r\nProcess ID: "), 0u) << Report();
}

TEST_F(ProcessReportTest, IdsHaveEightDigits)
{
    const std::pair<DWORD, const wchar_t*> ids[] = {
        {0, L"0x00000000"}, {0xABCDEF, L"0x00ABCDEF"}, {0xFFFFFFFE, L"0xFFFFFFFE"}};
    for (const auto& [id, text] : ids) {
        record.id = id;
        ExpectLine(std::wstring(L"Process ID: ") + text);
    }
}

TEST_F(ProcessReportTest, VersionsAreTwoDecimalNumbers)
{
    const std::pair<DWORD, const wchar_t*> versions[] = {
        {0, L"0.0"}, {0x0005000A, L"5.10"}, {0x00040000, L"4.0"}, {0xFFFF8000, L"65535.32768"}};
    for (const auto& [version, text] : versions) {
        Process().version = version;
        ExpectLine(std::wstring(L"Required OS version: ") + text);
    }
}

TEST_F(ProcessReportTest, MemoryAndThreadsAreTheRecords)
{
    const std::pair<uint64_t, const wchar_t*> sizes[] = {
        {0, L"0 B"}, {1023, L"1023 B"}, {1048576, L"1 MB"}, {0x80000000, L"2 GB"}};
    for (const auto& [bytes, text] : sizes) {
        record.heapBytes = bytes;
        ExpectLine(std::wstring(L"Memory usage: ") + text);
    }
    Process().threads = 99;
    for (const auto& [threads, text] :
         {std::pair(0u, L"0"), std::pair(12u, L"12"), std::pair(0xFFFFFFFFu, L"-1")}) {
        record.threadCount = threads;
        ExpectLine(std::wstring(L"Thread count: ") + text);
    }
    for (const auto& [flags, process] : system.snapshots) {
        EXPECT_EQ(flags, 0x40000008u) << "neither processes nor heaps are asked again";
    }
}

TEST_F(ProcessReportTest, ModuleSizesHaveTheirUnits)
{
    const std::pair<DWORD, const wchar_t*> sizes[] = {
        {0, L"0 B"}, {1536, L"1.50 KB"}, {0x80000000, L"2 GB"}, {0xC0000000, L"3 GB"}};
    for (const auto& [bytes, text] : sizes) {
        Process().modules = {{L"a.dll", L"", 0, 0, bytes}};
        ExpectLine(std::wstring(L"Size of the module: ") + text);
    }
}

TEST_F(ProcessReportTest, NamesThatLookLikeFormatsAreTakenAsTheyAre)
{
    Process().path = L"\\%s%n\\%d.exe";
    Process().modules = {{L"%s%n.dll", L"\\100%\\%s.dll", 0, 0, 1}};
    EXPECT_EQ(Report().find(L"Full name:\r\n\\%s%n\\%d.exe\r\n"), 0u);
    EXPECT_EQ(Modules(), L"Name: %s%n.dll"
                         L"\r\nExePath: \\100%\\%s.dll"
                         L"\r\nGlobal usage count: 0"
                         L"\r\nProcess ref. count: 0"
                         L"\r\nSize of the module: 1 B\r\n\r\n");
}

TEST_F(ProcessReportTest, ModulesKeepTheSnapshotsOrderAndTheirWholeNames)
{
    const std::wstring longest(259, L'm');
    std::wstring expected;
    for (const std::wstring& name :
         {longest, std::wstring(L"z.dll"), std::wstring(), std::wstring(L"a.dll")}) {
        Process().modules.push_back({name, longest, 0, 0, 0});
        expected += L"Name: " + name + L"\r\nExePath: " + longest +
                    L"\r\nGlobal usage count: 0\r\nProcess ref. count: 0\r\nSize of the module: 0 B\r\n\r\n";
    }
    EXPECT_EQ(Modules(), expected);
}
