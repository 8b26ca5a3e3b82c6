// Whether a process's id has been given to another one.
#include "pages/procs/ProcessSnapshot.h"
#include "tests/support/ScriptedProcesses.h"

#include <gtest/gtest.h>

class TakenIdTest : public testing::Test
{
  protected:
    ScriptedProcesses system;

    TakenIdTest()
    {
        system.Add(4, L"NK.EXE");
        system.Add(42, L"Word.exe");
        system.Add(43, L"excel.exe");
    }

    ~TakenIdTest() override
    {
        EXPECT_EQ(system.open, 0);
        EXPECT_EQ(system.closedAsHandles, 0);
        EXPECT_FALSE(system.badRequest);
    }

    static bool IsTaken(DWORD id, const wchar_t* name) { return IsTakenByAnother({id, CStr(name)}); }
};

TEST_F(TakenIdTest, TheSameNameIsTheSameProcess)
{
    EXPECT_FALSE(IsTaken(42, L"Word.exe"));
    EXPECT_EQ(system.snapshots, (std::vector<std::pair<DWORD, DWORD>>{{0x40000002, 0}}));
}

TEST_F(TakenIdTest, LettersOfAnotherCaseAreTheSameName)
{
    EXPECT_FALSE(IsTaken(42, L"WORD.EXE"));
    EXPECT_FALSE(IsTaken(43, L"Excel.Exe"));
}

TEST_F(TakenIdTest, AnotherNameIsAnotherProcess)
{
    EXPECT_TRUE(IsTaken(42, L"excel.exe"));
    EXPECT_TRUE(IsTaken(42, L"Word.ex"));
    EXPECT_TRUE(IsTaken(42, L"Word.exe "));
    EXPECT_TRUE(IsTaken(42, L""));
    EXPECT_TRUE(IsTaken(4, L"Word.exe")) << "the first of the snapshot";
    EXPECT_TRUE(IsTaken(43, L"Word.exe")) << "the last";
}

TEST_F(TakenIdTest, AnIdThatNoProcessHasIsNotTaken)
{
    EXPECT_FALSE(IsTaken(44, L"Word.exe"));
    EXPECT_FALSE(IsTaken(0, L"Word.exe"));
}

TEST_F(TakenIdTest, WithASystemThatCannotBeAskedItMayBe)
{
    system.hasFirstProcess = false;
    EXPECT_TRUE(IsTaken(42, L"Word.exe"));
    system.givesProcesses = false;
    EXPECT_TRUE(IsTaken(42, L"Word.exe"));
}
