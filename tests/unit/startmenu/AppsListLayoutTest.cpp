// The record of a program of the Start menu, and the array of such records.
#include "framework/CRecords.h"
#include "startmenu/SAppsList.h"
#include "tests/support/Fatal.h"

#include <cstddef>
#include <type_traits>

TEST(AppsListLayoutTest, AProgramIsItsNamePathTargetAndIcon)
{
    EXPECT_EQ(offsetof(SAppsList, name), 0u);
    EXPECT_EQ(offsetof(SAppsList, path), sizeof(CStr));
    EXPECT_EQ(offsetof(SAppsList, target), 2 * sizeof(CStr));
    EXPECT_EQ(offsetof(SAppsList, icon), 3 * sizeof(CStr));
    EXPECT_TRUE((std::is_same_v<decltype(SAppsList::icon), int32_t>)) << "signed";
    const SAppsList program;
    EXPECT_EQ(program.icon, -1);
}

TEST(AppsListLayoutTest, TheArrayOfProgramsGrowsBySixteenPlaces)
{
    CRecords<SAppsList> programs;
    for (uint32_t count = 1; count <= 33; count++) {
        programs.Append(new SAppsList);
        EXPECT_EQ(programs.Capacity(), (count + 15) / 16 * 16) << count;
    }
}

TEST(AppsListLayoutTest, TheArrayOfProgramsIsNamedInFatalReports)
{
    CRecords<SAppsList> programs(1);
    EXPECT_FATAL(programs.At(0), L"CArray<struct SAppsList *>::At", L"Out of range");
    EXPECT_FATAL(programs.Delete(0, 1), L"CArray<struct SAppsList *>::Delete", L"Out of range");
}
