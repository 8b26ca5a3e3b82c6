// The two reports of the system information page, letter for letter.
#include "pages/sysinfo/SysInfoReport.h"
#include "tests/support/ScriptedDevice.h"

#include <gtest/gtest.h>

class SysInfoReportTest : public testing::Test
{
  protected:
    ScriptedDevice device;

    static std::wstring Memory()
    {
        CStr report;
        AppendMemoryReport(report);
        return report.Buffer();
    }

    static std::wstring Battery()
    {
        CStr report;
        AppendBatteryReport(report);
        return report.Buffer();
    }

    // What the memory report says between a heading and the next one.
    static std::wstring Block(const std::wstring& heading)
    {
        const std::wstring report = Memory();
        const size_t begin = report.find(heading);
        EXPECT_NE(begin, std::wstring::npos) << heading.c_str();
        const size_t end = report.find(L"\r\n\r\n", begin);
        return begin == std::wstring::npos ? L"" : report.substr(begin, end - begin);
    }

    // The line of the battery report that begins so; without its beginning.
    static std::wstring Line(const std::wstring& beginning)
    {
        const std::wstring report = Battery();
        const size_t found = report.find(beginning);
        EXPECT_NE(found, std::wstring::npos) << beginning.c_str();
        if (found == std::wstring::npos) {
            return L"";
        }
        const size_t begin = found + beginning.size();
        return report.substr(begin, report.find(L"\r\n", begin) - begin);
    }
};

static const wchar_t* const percentLabels[] = {
    L"\r\n\r\nPercentage of full battery charge remaining: ",
    L"\r\n\r\nPercentage of full backup battery charge remaining: "};
static const wchar_t* const secondsLabels[] = {
    L"\r\n\r\nNumber of seconds of battery life when at full charge: ",
    L"\r\n\r\nNumber of seconds of battery life remaining: "};

TEST_F(SysInfoReportTest, TheMemoryReportWithCards)
{
    device.memory.dwTotalPageFile = 1536;
    device.memory.dwAvailPageFile = 512;
    device.AddCard(L"Storage Card", 536870912, 402653184);
    device.AddCard(L"100%s", 0, 0);
    EXPECT_EQ(Memory(), L"PHYSICAL MEMORY:\r\nTotal: 64 MB\r\nAvailable: 32 MB\r\nUsed: 32 MB\r\n\r\n"
                        L"VIRTUAL MEMORY:\r\nTotal: 32 MB\r\nAvailable: 16 MB\r\nUsed: 16 MB\r\n\r\n"
                        L"PAGE FILE:\r\nTotal: 1.50 KB\r\nAvailable: 512 B\r\nUsed: 1 KB\r\n\r\n"
                        L"STORAGE MEMORY:\r\nTotal: 128 MB\r\nAvailable: 80 MB\r\nUsed: 48 MB\r\n\r\n"
                        L"Storage Card\r\nTotal: 512 MB\r\nAvailable: 384 MB\r\nUsed: 128 MB\r\n\r\n"
                        L"100%s\r\nTotal: 0 B\r\nAvailable: 0 B\r\nUsed: 0 B");
    EXPECT_EQ(device.memoryLength, sizeof(MEMORYSTATUS));
}

TEST_F(SysInfoReportTest, WithoutCardsTheMemoryReportEndsWithTheStorage)
{
    EXPECT_EQ(Memory(), L"PHYSICAL MEMORY:\r\nTotal: 64 MB\r\nAvailable: 32 MB\r\nUsed: 32 MB\r\n\r\n"
                        L"VIRTUAL MEMORY:\r\nTotal: 32 MB\r\nAvailable: 16 MB\r\nUsed: 16 MB\r\n\r\n"
                        L"PAGE FILE:\r\nTotal: 0 B\r\nAvailable: 0 B\r\nUsed: 0 B\r\n\r\n"
                        L"STORAGE MEMORY:\r\nTotal: 128 MB\r\nAvailable: 80 MB\r\nUsed: 48 MB");
}

TEST_F(SysInfoReportTest, UsedMemoryIsADifferenceOfThirtyTwoBits)
{
    device.memory.dwTotalPhys = 1;
    device.memory.dwAvailPhys = 1025;
    device.memory.dwTotalVirtual = 0xFFFFFFFF;
    device.memory.dwAvailVirtual = 0;
    device.memory.dwTotalPageFile = 0;
    device.memory.dwAvailPageFile = 0x80000000;
    EXPECT_EQ(Block(L"PHYSICAL MEMORY:"), L"PHYSICAL MEMORY:\r\nTotal: 1 B\r\nAvailable: 1 KB\r\nUsed: 4 GB");
    EXPECT_EQ(Block(L"VIRTUAL MEMORY:"), L"VIRTUAL MEMORY:\r\nTotal: 4 GB\r\nAvailable: 0 B\r\nUsed: 4 GB");
    EXPECT_EQ(Block(L"PAGE FILE:"), L"PAGE FILE:\r\nTotal: 0 B\r\nAvailable: 2 GB\r\nUsed: 2 GB");
}

TEST_F(SysInfoReportTest, StorageHasSixtyFourBits)
{
    device.volumes[L"\\"] = {0x10000000000, 0x4000000000};
    EXPECT_EQ(Block(L"STORAGE MEMORY:"),
              L"STORAGE MEMORY:\r\nTotal: 1 TB\r\nAvailable: 256 GB\r\nUsed: 768 GB");
}

TEST_F(SysInfoReportTest, MoreFreeThanThereIsGivesANegativeSize)
{
    device.volumes[L"\\"] = {1024, 2048};
    EXPECT_EQ(Block(L"STORAGE MEMORY:"),
              L"STORAGE MEMORY:\r\nTotal: 1 KB\r\nAvailable: 2 KB\r\nUsed: -1024 B");
}

TEST_F(SysInfoReportTest, StorageThatDoesNotAnswerShowsWhatWasBefore)
{
    device.volumes[L"\\"].answers = false;
    device.AddCard(L"A", 2048, 1024);
    device.AddCard(L"Mute", 1, 1);
    device.volumes[L"\\Mute"].answers = false;
    EXPECT_EQ(Block(L"STORAGE MEMORY:"), L"STORAGE MEMORY:\r\nTotal: 0 B\r\nAvailable: 0 B\r\nUsed: 0 B");
    EXPECT_EQ(Block(L"Mute"), L"Mute\r\nTotal: 2 KB\r\nAvailable: 1 KB\r\nUsed: 1 KB");
}

TEST_F(SysInfoReportTest, CardsWithoutANameOrAFolderAreLeftOut)
{
    const std::wstring without = Memory();
    device.cards.emplace_back();
    device.AddCard(L"Gone", 10, 1);
    device.volumes[L"\\Gone"].exists = false;
    EXPECT_EQ(Memory(), without);
}

TEST_F(SysInfoReportTest, TheBatteryReport)
{
    device.battery.ACLineStatus = 1;
    device.battery.BatteryFlag = 9; // none of these is told
    device.battery.BackupBatteryFlag = 8;
    device.battery.BackupBatteryLifePercent = 98;
    device.battery.BackupBatteryLifeTime = 7;
    device.battery.BackupBatteryFullLifeTime = 6;
    EXPECT_EQ(Battery(), L"AC POWER STATUS:\r\n Online (Charging)\r\n\r\n"
                         L"Percentage of full battery charge remaining: 76%\r\n\r\n"
                         L"Number of seconds of battery life when at full charge: 21600 sec\r\n\r\n"
                         L"Number of seconds of battery life remaining: 16200 sec\r\n\r\n"
                         L"Percentage of full backup battery charge remaining: 98%");
    EXPECT_EQ(device.updates, std::vector<BOOL>{TRUE});
}

TEST_F(SysInfoReportTest, WithoutABatteryThatIsAllThatIsSaid)
{
    device.hasBattery = false;
    EXPECT_EQ(Battery(), L"Battery info is not available");
}

TEST_F(SysInfoReportTest, EveryStateOfTheLine)
{
    const struct
    {
        BYTE status;
        const wchar_t* text;
    } states[] = {{0, L" Offline (Battery used)"},
                  {1, L" Online (Charging)"},
                  {2, L" Backup power"},
                  {3, L" Unknown"},
                  {128, L" Unknown"},
                  {255, L" Unknown"}};
    for (const auto& each : states) {
        device.battery.ACLineStatus = each.status;
        EXPECT_EQ(Line(L"AC POWER STATUS:\r\n"), each.text) << int{each.status};
    }
}

TEST_F(SysInfoReportTest, PercentsUpToAHundredAreKnown)
{
    const struct
    {
        BYTE percent;
        const wchar_t* text;
    } cases[] = {{0, L"0%"}, {1, L"1%"}, {100, L"100%"}, {101, L"Unknown"}, {255, L"Unknown"}};
    for (const auto& each : cases) {
        device.battery.BatteryLifePercent = each.percent;
        device.battery.BackupBatteryLifePercent = 55;
        EXPECT_EQ(Line(percentLabels[0]), each.text);
        EXPECT_EQ(Line(percentLabels[1]), L"55%");
        device.battery.BatteryLifePercent = 55;
        device.battery.BackupBatteryLifePercent = each.percent;
        EXPECT_EQ(Line(percentLabels[0]), L"55%");
        EXPECT_EQ(Line(percentLabels[1]), each.text);
    }
}

TEST_F(SysInfoReportTest, SecondsAreKnownButForTheLargest)
{
    const struct
    {
        DWORD seconds;
        const wchar_t* text;
    } cases[] = {{0, L"0 sec"},
                 {3600, L"3600 sec"},
                 {0x80000000, L"2147483648 sec"},
                 {0xFFFFFFFE, L"4294967294 sec"},
                 {0xFFFFFFFF, L"Unknown"}};
    for (const auto& each : cases) {
        device.battery.BatteryFullLifeTime = each.seconds;
        device.battery.BatteryLifeTime = 5;
        EXPECT_EQ(Line(secondsLabels[0]), each.text);
        EXPECT_EQ(Line(secondsLabels[1]), L"5 sec");
        device.battery.BatteryFullLifeTime = 5;
        device.battery.BatteryLifeTime = each.seconds;
        EXPECT_EQ(Line(secondsLabels[0]), L"5 sec");
        EXPECT_EQ(Line(secondsLabels[1]), each.text);
    }
}

TEST_F(SysInfoReportTest, ReportsAreAppended)
{
    CStr report(L"before ");
    device.hasBattery = false;
    AppendBatteryReport(report);
    EXPECT_STREQ(report.Buffer(), L"before Battery info is not available");
}
