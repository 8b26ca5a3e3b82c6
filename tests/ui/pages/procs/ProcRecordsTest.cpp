// The array of the processes' records: its places, its failures, and what its end leaves.
#include "tests/support/Fatal.h"
#include "tests/support/TestHeap.h"
#include "tests/ui/pages/procs/ProcsTest.h"

#include <optional>

class ProcRecordsTest : public ProcsTest
{
  protected:
    // Lets no memory be had between the record of the last process and the end of the snapshot.
    void FillWithoutRoomForTheLast(ProgramApp& app)
    {
        const DWORD last = system.processes.back().id;
        std::optional<AllocationFailure> failure;
        SPY(CreateToolhelp32Snapshot) take;
        SPY(CloseToolhelp32Snapshot) close;
        close.calls.reserve(100); // a spy asks for memory too
        take.instead = [&](DWORD flags, DWORD process) {
            if (process == last) {
                failure.emplace(0); // the last heaps are asked for
            }
            return take.Real(flags, process);
        };
        close.instead = [&](HANDLE snapshot) {
            if (failure) {
                EXPECT_FALSE(failure->Happened());
                failure.reset();
            }
            return close.Real(snapshot);
        };
        Page(app).FillContents(0);
    }
};

TEST_F(ProcRecordsTest, TenProcessesHaveRoomFromTheStart)
{
    AddProcesses(1);
    OnPage([&](ProgramApp& app) {
        AddProcesses(9);
        FillWithoutRoomForTheLast(app);
        EXPECT_EQ(Count(app), 10);
    });
}

TEST_F(ProcRecordsTest, WithoutRoomForTheEleventhItIsFatal)
{
    AddProcesses(1);
    const auto fail = [&] {
        OnPage([&](ProgramApp& app) {
            AddProcesses(10);
            FillWithoutRoomForTheLast(app);
        });
    };
    EXPECT_FATAL(fail(), L"CArray<struct SProcInfo *>::Append", L"Not enough memory");
}

TEST_F(ProcRecordsTest, RoomIsMadeForTenMoreAndKept)
{
    AddProcesses(11);
    OnPage([&](ProgramApp& app) {
        AddProcesses(9);
        FillWithoutRoomForTheLast(app);
        EXPECT_EQ(Count(app), 20);
        system.processes.resize(1);
        Run(app, CMD_REFRESH);
        AddProcesses(19);
        FillWithoutRoomForTheLast(app);
        EXPECT_EQ(Count(app), 20);
    });
}

TEST_F(ProcRecordsTest, ARecordThatIsNotThereIsFatal)
{
    AddProcesses(2);
    EXPECT_FATAL(OnPage([](ProgramApp& app) { (void)Page(app).Process(2); }),
                 L"CArray<struct SProcInfo *>::At", L"Out of range");
}

TEST_F(ProcRecordsTest, TheEndOfThePageFreesThemAll)
{
    AddProcesses(25);
    const auto life = [&] {
        OnPage([](ProgramApp& app) { EXPECT_EQ(Page(app).ProcessCount(), 25u); });
        system.snapshots = {};
        system.pathSizes = {};
        enumWindows.calls = {};
        registerClass.calls = {};
    };
    life();
    const size_t before = LiveBlocks();
    life();
    EXPECT_EQ(LiveBlocks(), before);
}
