// The array of the rows of the system information page: ten places, and ten more when they are full.
#include "tests/support/TestHeap.h"
#include "tests/ui/pages/sysinfo/ShownSysInfo.h"

class SysInfoRecordsTest : public ShownSysInfo
{
  protected:
    // Fills the page anew; how many blocks of memory its last row, the battery's, took.
    static size_t BlocksOfTheLastRow(ProgramApp& app)
    {
        size_t before = 0;
        SPY(GetSystemPowerStatusEx) power;
        power.instead = [&](SYSTEM_POWER_STATUS_EX* status, BOOL update) {
            const BOOL known = power.Real(status, update);
            before = BlocksEver();
            return known;
        };
        Page(app).FillContents(0);
        return BlocksEver() - before;
    }
};

TEST_F(SysInfoRecordsTest, RoomIsMadeForTenRowsAtATimeAndKept)
{
    OnPage([&](ProgramApp& app) {
        const size_t withRoom = BlocksOfTheLastRow(app);
        for (uint32_t rows = 4; rows <= 32; rows++) {
            device.AddCards(1);
            const size_t room = rows == 11 || rows == 21 || rows == 31 ? 1 : 0;
            EXPECT_EQ(BlocksOfTheLastRow(app), withRoom + room) << rows;
            ASSERT_EQ(Page(app).RowCount(), rows);
            EXPECT_EQ(BlocksOfTheLastRow(app), withRoom) << "the room is kept for " << rows;
        }
    });
}
