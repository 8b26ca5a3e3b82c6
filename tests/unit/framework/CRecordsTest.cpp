// CRecords: the array that owns its records.
#include "framework/CRecords.h"
#include "tests/support/TestHeap.h"
#include "tests/unit/framework/SCountedRecord.h"

#include <gtest/gtest.h>

static void Fill(CArray<SCountedRecord*>& records, int count)
{
    for (int i = 0; i < count; i++) {
        records.Append(new SCountedRecord);
    }
}

TEST(CRecordsTest, ClearingDeletesTheRecordsAndKeepsThePlaces)
{
    CRecords<SCountedRecord> records(4);
    for (const int count : {5, 1, 0, 3}) {
        Fill(records, count);
        EXPECT_EQ(SCountedRecord::alive, count);
        records.Clear();
        EXPECT_EQ(SCountedRecord::alive, 0) << count;
        EXPECT_EQ(records.Count(), 0U);
        EXPECT_EQ(records.Capacity(), 8U);
    }
}

TEST(CRecordsTest, ItsEndDeletesThem)
{
    const size_t before = LiveBlocks();
    {
        CRecords<SCountedRecord> records;
        Fill(records, 40);
    }
    EXPECT_EQ(SCountedRecord::alive, 0);
    EXPECT_EQ(LiveBlocks(), before);
}

TEST(CRecordsTest, ItsEndThroughTheArraysNameDeletesThemToo)
{
    const size_t before = LiveBlocks();
    CArray<SCountedRecord*>* records = new CRecords<SCountedRecord>;
    Fill(*records, 3);
    delete records;
    EXPECT_EQ(SCountedRecord::alive, 0);
    EXPECT_EQ(LiveBlocks(), before);
}
