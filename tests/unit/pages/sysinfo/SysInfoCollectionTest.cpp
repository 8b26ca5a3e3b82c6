// What the rows of the system information page are made of.
#include "pages/sysinfo/SysInfoCollection.h"
#include "tests/support/Fatal.h"
#include "tests/support/ScriptedDevice.h"
#include "tests/support/TestHeap.h"

class SysInfoCollectionTest : public testing::Test
{
  protected:
    ScriptedDevice device;
    CRecords<SSysInfo> rows{10};

    const SSysInfo& Battery()
    {
        CollectSysInfo(rows);
        return *rows.At(rows.Count() - 1);
    }

    static void ExpectRow(const SSysInfo& row, uint32_t kind, const wchar_t* name, uint64_t total,
                          int64_t free)
    {
        EXPECT_STREQ(row.name.Buffer(), name);
        EXPECT_EQ(row.kind, kind) << name;
        EXPECT_EQ(row.total, total) << name;
        EXPECT_EQ(row.free, free) << name;
    }
};

TEST_F(SysInfoCollectionTest, MemoryStorageCardsAndBatteryFollowEachOther)
{
    device.AddCard(L"Storage Card", 536870912, 402653184);
    device.AddCard(L"CF", 20, 2);
    CollectSysInfo(rows);
    ASSERT_EQ(rows.Count(), 5u);
    ExpectRow(*rows.At(0), 0, L"Physical memory", 67108864, 33554432);
    ExpectRow(*rows.At(1), 1, L"Storage memory", 134217728, 83886080);
    ExpectRow(*rows.At(2), 2, L"Storage Card", 536870912, 402653184);
    ExpectRow(*rows.At(3), 2, L"CF", 20, 2);
    ExpectRow(*rows.At(4), 3, L"Battery", 100, 24);
    EXPECT_EQ(device.calls.front(), L"memory");
    EXPECT_EQ(device.calls.back(), L"power");
}

TEST_F(SysInfoCollectionTest, WithoutCardsThereAreThreeRowsAndWithoutABatteryTwo)
{
    CollectSysInfo(rows);
    EXPECT_EQ(rows.Count(), 3u);
    device.hasBattery = false;
    CollectSysInfo(rows);
    ASSERT_EQ(rows.Count(), 2u);
    EXPECT_EQ(rows.At(1)->kind, 1u);
}

TEST_F(SysInfoCollectionTest, MemoryHasThirtyTwoBits)
{
    device.memory.dwTotalPhys = 0xFFFFFFFF;
    device.memory.dwAvailPhys = 0x80000000;
    CollectSysInfo(rows);
    ExpectRow(*rows.At(0), 0, L"Physical memory", 0xFFFFFFFF, 0x80000000);
    device.memory.dwTotalPhys = static_cast<SIZE_T>(0x700000005);
    device.memory.dwAvailPhys = static_cast<SIZE_T>(0x300000002);
    CollectSysInfo(rows);
    ExpectRow(*rows.At(0), 0, L"Physical memory", 5, 2);
}

TEST_F(SysInfoCollectionTest, MemoryIsAskedForWithTheRecordsLength)
{
    CollectSysInfo(rows);
    EXPECT_EQ(device.memoryLength, sizeof(MEMORYSTATUS));
}

TEST_F(SysInfoCollectionTest, StorageMayHaveFourGigabytesAndMore)
{
    device.volumes[L"\\"] = {0x100000000, 0xFFFFFFFF};
    device.AddCard(L"Big", 0x123456789ABC, 0x100000001);
    CollectSysInfo(rows);
    ExpectRow(*rows.At(1), 1, L"Storage memory", 0x100000000, 0xFFFFFFFF);
    ExpectRow(*rows.At(2), 2, L"Big", 0x123456789ABC, 0x100000001);
}

TEST_F(SysInfoCollectionTest, StorageThatDoesNotAnswerHasARowOfZeros)
{
    CollectSysInfo(rows);
    device.volumes[L"\\"].answers = false;
    device.AddCard(L"Mute", 10, 1);
    device.volumes[L"\\Mute"].answers = false;
    CollectSysInfo(rows);
    ASSERT_EQ(rows.Count(), 4u);
    ExpectRow(*rows.At(1), 1, L"Storage memory", 0, 0);
    ExpectRow(*rows.At(2), 2, L"Mute", 0, 0);
}

TEST_F(SysInfoCollectionTest, ACardOfNoBytesHasItsRow)
{
    device.AddCard(L"Empty", 0, 0);
    CollectSysInfo(rows);
    ASSERT_EQ(rows.Count(), 4u);
    ExpectRow(*rows.At(2), 2, L"Empty", 0, 0);
}

TEST_F(SysInfoCollectionTest, FreeOfTheBatteryIsWhatIsMissingToAHundred)
{
    const struct
    {
        BYTE percent;
        int64_t free;
    } cases[] = {{0, 100}, {1, 99}, {76, 24}, {100, 0}, {101, -1}, {255, -155}};
    for (const auto& each : cases) {
        device.battery.BatteryLifePercent = each.percent;
        ExpectRow(Battery(), 3, L"Battery", 100, each.free);
        EXPECT_EQ(Battery().Used(), each.percent);
    }
}

TEST_F(SysInfoCollectionTest, OnlyTheBatteryChargesAndOnlyOnline)
{
    device.AddCard(L"Card", 10, 1);
    for (const int ac : {0, 1, 2, 3, 254, 255}) {
        device.battery.ACLineStatus = static_cast<BYTE>(ac);
        EXPECT_EQ(Battery().charging, ac == 1 ? 1u : 0u) << ac;
        for (uint32_t row = 0; row < 3; row++) {
            EXPECT_EQ(rows.At(row)->charging, 0u);
        }
    }
}

TEST_F(SysInfoCollectionTest, TheBatteryIsAskedForItsStateOfNow)
{
    CollectSysInfo(rows);
    EXPECT_EQ(device.updates, std::vector<BOOL>{TRUE});
}

TEST_F(SysInfoCollectionTest, EachCollectionReplacesTheRowsBefore)
{
    device.AddCards(20);
    CollectSysInfo(rows);
    EXPECT_EQ(rows.Count(), 23u);
    EXPECT_EQ(rows.Capacity(), 30u);
    device.cards.clear();
    CollectSysInfo(rows);
    EXPECT_EQ(rows.Count(), 3u);
    device.calls.clear();
    const size_t before = LiveBlocks();
    CollectSysInfo(rows);
    device.calls.clear();
    EXPECT_EQ(LiveBlocks(), before);
}

TEST_F(SysInfoCollectionTest, ARowThatCannotBeMadeIsFatal)
{
    const auto collect = [&] {
        const AllocationFailure none(0);
        CollectSysInfo(rows);
    };
    device.calls.reserve(1000);
    EXPECT_FATAL(collect(), L"CViewSysInfo::FillContents", L"Not enough memory");
}
