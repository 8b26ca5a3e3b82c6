// The array of the running applications' records: its places, and what its end leaves.
#include "tests/support/TestHeap.h"
#include "tests/ui/ProgramTest.h"

class TaskRecordsTest : public ProgramTest
{
  protected:
    // The array that the last enumeration filled.
    CTaskRecords& Array() { return *reinterpret_cast<CTaskRecords*>(std::get<1>(enumWindows.calls.back())); }

    void AddTasks(int count)
    {
        for (int i = 0; i < count; i++) {
            AddTask((L"Task " + std::to_wstring(i)).c_str());
        }
    }
};

TEST_F(TaskRecordsTest, TheArrayGrowsByTenPlacesAndKeepsThem)
{
    AddTasks(10);
    InProgram([&](ProgramApp& app) {
        EXPECT_EQ(Array().Count(), 10u);
        EXPECT_EQ(Array().Capacity(), 10u);
        AddTasks(1);
        app.Tasks().FillList(-1);
        EXPECT_EQ(Array().Count(), 11u);
        EXPECT_EQ(Array().Capacity(), 20u);
        AddTasks(10);
        app.Tasks().FillList(-1);
        EXPECT_EQ(Array().Count(), 21u);
        EXPECT_EQ(Array().Capacity(), 30u);
        std::vector<HWND> all;
        all.swap(listed);
        app.Tasks().FillList(-1);
        EXPECT_EQ(Array().Count(), 0u);
        EXPECT_EQ(Array().Capacity(), 30u);
        all.swap(listed);
    });
}

TEST_F(TaskRecordsTest, TheEndOfThePageFreesThemAll)
{
    AddTasks(25);
    const auto life = [&] {
        InProgram([](ProgramApp& app) { EXPECT_EQ(app.Tasks().TaskCount(), 25u); });
        enumWindows.calls.clear();
        enumWindows.calls.shrink_to_fit();
        registerClass.calls.clear();
        registerClass.calls.shrink_to_fit();
    };
    life();
    const size_t before = LiveBlocks();
    life();
    EXPECT_EQ(LiveBlocks(), before);
}
