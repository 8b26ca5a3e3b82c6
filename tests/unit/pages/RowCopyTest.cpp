// What a command about a row acts on.
#include "pages/RowCopy.h"
#include "tests/unit/pages/SNamedRow.h"

#include <gtest/gtest.h>

class RowCopyTest : public testing::Test
{
  protected:
    SNamedRow rows[3] = {{100}, {101}, {102}};
    CArray<SNamedRow*> records;

    RowCopyTest()
    {
        for (SNamedRow& row : rows) {
            records.Append(&row);
        }
    }
};

TEST_F(RowCopyTest, ARowGivesItsNumberAndItsIdentity)
{
    for (int row = 0; row < 3; row++) {
        const SRowCopy<int> copy = CopyRow(records, row);
        EXPECT_TRUE(copy);
        EXPECT_EQ(copy.row, row);
        EXPECT_EQ(copy.identity, 100 + row);
    }
}

TEST_F(RowCopyTest, ARowWithoutARecordGivesAnEmptyCopy)
{
    for (const int row : {-1, -2, 3, 4, INT_MIN, INT_MAX}) {
        const SRowCopy<int> copy = CopyRow(records, row);
        EXPECT_FALSE(copy) << row;
        EXPECT_EQ(copy.row, -1) << row;
        EXPECT_EQ(copy.identity, 0) << row;
    }
    records.Delete(0, 3);
    EXPECT_FALSE(CopyRow(records, 0));
}

TEST_F(RowCopyTest, TheCopyStaysWhenTheRecordsChange)
{
    const SRowCopy<int> copy = CopyRow(records, 1);
    rows[1].name = 7;
    records.Delete(1, 1);
    EXPECT_EQ(copy.identity, 101);
}
