// The record of a row of the system information page, and what tells its kinds apart.
#include "framework/CRecords.h"
#include "pages/sysinfo/SSysInfo.h"
#include "tests/support/Fatal.h"

#include <cstddef>
#include <type_traits>

TEST(SysInfoLayoutTest, ARowIsItsNameFreeTotalKindAndCharging)
{
    EXPECT_EQ(offsetof(SSysInfo, name), 0u);
    EXPECT_GE(offsetof(SSysInfo, free), sizeof(CStr));
    EXPECT_EQ(offsetof(SSysInfo, total), offsetof(SSysInfo, free) + 8);
    EXPECT_EQ(offsetof(SSysInfo, kind), offsetof(SSysInfo, total) + 8);
    EXPECT_EQ(offsetof(SSysInfo, charging), offsetof(SSysInfo, kind) + 4);
    EXPECT_EQ(sizeof(SSysInfo), offsetof(SSysInfo, charging) + 4);
    EXPECT_TRUE((std::is_same_v<decltype(SSysInfo::free), int64_t>)) << "signed";
    EXPECT_TRUE((std::is_same_v<decltype(SSysInfo::total), uint64_t>));
    EXPECT_TRUE((std::is_same_v<decltype(SSysInfo::kind), uint32_t>));
    const SSysInfo row;
    EXPECT_TRUE(row.name.IsEmpty());
    EXPECT_EQ(row.free, 0);
    EXPECT_EQ(row.total, 0u);
    EXPECT_EQ(row.kind, 0u);
    EXPECT_EQ(row.charging, 0u);
}

TEST(SysInfoLayoutTest, TheKindsAreNumbered)
{
    EXPECT_EQ(MainMemory, 0u);
    EXPECT_EQ(InternalStorage, 1u);
    EXPECT_EQ(StorageCard, 2u);
    EXPECT_EQ(MainBattery, 3u);
    EXPECT_EQ(sysInfoKinds, 4u);
}

TEST(SysInfoLayoutTest, UsedIsTheSignedDifference)
{
    SSysInfo row;
    row.total = 100;
    const struct
    {
        int64_t free;
        int64_t used;
    } cases[] = {{0, 100}, {100, 0}, {24, 76}, {-155, 255}, {101, -1}};
    for (const auto& each : cases) {
        row.free = each.free;
        EXPECT_EQ(row.Used(), each.used) << each.free;
    }
    row.total = 0x8000000000000001;
    row.free = 2;
    EXPECT_EQ(row.Used(), 0x7FFFFFFFFFFFFFFF);
}

TEST(SysInfoLayoutTest, TheArrayOfRowsIsNamedInFatalReports)
{
    CRecords<SSysInfo> rows(1);
    EXPECT_FATAL(rows.At(0), L"CArray<struct SSysInfo *>::At", L"Out of range");
    EXPECT_FATAL(rows.Delete(0, 1), L"CArray<struct SSysInfo *>::Delete", L"Out of range");
    EXPECT_FATAL(CRecords<SSysInfo>(0), L"CArray<struct SSysInfo *>::CArray", L"Invalid value");
}
