// The icons of the well-known built-in programs.
#include "startmenu/CStartPrograms.h"
#include "tests/unit/ScriptedIcons.h"

#include <gtest/gtest.h>

class CStartProgramsTest : public testing::Test
{
  protected:
    ScriptedIcons shell;
    CStartPrograms programs;

    SAppsList& Add(const wchar_t* path)
    {
        auto* entry = new SAppsList;
        entry->path = path;
        programs.Programs().Append(entry);
        return *entry;
    }
    void AddSlot(int index) { programs.KnownPrograms().Append(index); }
};

TEST_F(CStartProgramsTest, ASlotLeadsToItsEntrysIcon)
{
    Add(L"\\Start\\Contacts.lnk");
    Add(L"\\Start\\Calendar.lnk");
    AddSlot(1);
    AddSlot(0);
    shell.indexes[L"\\Start\\Contacts.lnk"] = 11;
    shell.indexes[L"\\Start\\Calendar.lnk"] = 22;
    EXPECT_EQ(programs.KnownIcon(0), 22);
    EXPECT_EQ(programs.KnownIcon(1), 11);
    EXPECT_EQ(shell.askedFlags, (std::vector<UINT>{0x4001, 0x4001}));
}

TEST_F(CStartProgramsTest, TheShellIsAskedOnce)
{
    SAppsList& entry = Add(L"\\Start\\Calendar.lnk");
    AddSlot(0);
    shell.indexes[L"\\Start\\Calendar.lnk"] = 22;
    EXPECT_EQ(programs.KnownIcon(0), 22);
    shell.indexes[L"\\Start\\Calendar.lnk"] = 33;
    EXPECT_EQ(programs.KnownIcon(0), 22);
    EXPECT_EQ(entry.icon, 22);
    EXPECT_EQ(shell.askedPaths.size(), 1u);
}

TEST_F(CStartProgramsTest, AnIconThatIsThereAlreadyIsTaken)
{
    Add(L"\\x.lnk").icon = 5;
    AddSlot(0);
    EXPECT_EQ(programs.KnownIcon(0), 5);
    EXPECT_TRUE(shell.askedPaths.empty());
}

TEST_F(CStartProgramsTest, AnEntryThatTheShellDoesNotKnowHasNone)
{
    Add(L"\\x.lnk");
    AddSlot(0);
    EXPECT_EQ(programs.KnownIcon(0), -1);
}

TEST_F(CStartProgramsTest, AnEmptySlotHasNone)
{
    Add(L"\\x.lnk").icon = 5;
    AddSlot(-1);
    EXPECT_EQ(programs.KnownIcon(0), -1);
    EXPECT_TRUE(shell.askedPaths.empty());
}

TEST_F(CStartProgramsTest, ASlotThatDoesNotExistHasNone)
{
    for (const uint32_t slot : {0u, 7u, 8u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        EXPECT_EQ(programs.KnownIcon(slot), -1) << slot;
    }
}

TEST_F(CStartProgramsTest, ASlotThatALongerListLeftBehindHasNone)
{
    Add(L"\\x.lnk").icon = 5;
    for (const int index : {1, 2, 0x7FFFFFFF, -2, static_cast<int>(0x80000000)}) {
        AddSlot(index);
    }
    for (uint32_t slot = 0; slot < 5; slot++) {
        EXPECT_EQ(programs.KnownIcon(slot), -1) << slot;
    }
}
