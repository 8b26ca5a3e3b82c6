// The fields of a process's record: their order and their sizes.
#include "pages/procs/SProcInfo.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <type_traits>

TEST(ProcRecordLayoutTest, AProcessIsItsNameIdIconIndexHeapAndThreads)
{
    EXPECT_EQ(offsetof(SProcInfo, name), 0u);
    EXPECT_EQ(offsetof(SProcInfo, id), sizeof(CStr));
    EXPECT_EQ(offsetof(SProcInfo, iconIndex), offsetof(SProcInfo, id) + 4);
    EXPECT_EQ(offsetof(SProcInfo, heapBytes), offsetof(SProcInfo, iconIndex) + 4);
    EXPECT_EQ(offsetof(SProcInfo, threadCount), offsetof(SProcInfo, heapBytes) + 8);
    EXPECT_TRUE((std::is_same_v<decltype(SProcInfo::iconIndex), int32_t>)) << "signed";
    EXPECT_TRUE((std::is_same_v<decltype(SProcInfo::heapBytes), uint64_t>));
    EXPECT_TRUE((std::is_same_v<decltype(SProcInfo::threadCount), uint32_t>));
}

TEST(ProcRecordLayoutTest, ANewRecordHasNoIcon)
{
    const SProcInfo process;
    EXPECT_EQ(process.id, 0u);
    EXPECT_LT(process.iconIndex, 0);
    EXPECT_EQ(process.heapBytes, 0u);
    EXPECT_EQ(process.threadCount, 0u);
}

TEST(ProcRecordLayoutTest, ItsIdentityIsACopy)
{
    SProcInfo process;
    process.id = 42;
    process.name = L"word.exe";
    const SProcIdentity identity = process.Identity();
    process.id = 43;
    process.name = L"excel.exe";
    EXPECT_EQ(identity.id, 42u);
    EXPECT_STREQ(identity.name, L"word.exe");
}
