// The icons of the well-known built-in programs.
#include "app/CApp.h"
#include "tests/unit/ScriptedIcons.h"

#include <gtest/gtest.h>

class AppWithPrograms : public CApp
{
  public:
    ~AppWithPrograms() override
    {
        for (uint32_t i = 0; i < applications.Count(); i++)
            delete applications.At(i);
    }

    SAppsList& Add(const wchar_t* path)
    {
        auto* entry = new SAppsList;
        entry->path = path;
        applications.Append(entry);
        return *entry;
    }
    void AddSlot(int index) { knownApplications.Append(index); }
};

class CAppKnownIconTest : public testing::Test
{
  protected:
    ScriptedIcons shell;
    AppWithPrograms app;
};

TEST_F(CAppKnownIconTest, ASlotLeadsToItsEntrysIcon)
{
    app.Add(L"\\Start\\Contacts.lnk");
    app.Add(L"\\Start\\Calendar.lnk");
    app.AddSlot(1);
    app.AddSlot(0);
    shell.indexes[L"\\Start\\Contacts.lnk"] = 11;
    shell.indexes[L"\\Start\\Calendar.lnk"] = 22;
    EXPECT_EQ(app.KnownApplicationIcon(0), 22);
    EXPECT_EQ(app.KnownApplicationIcon(1), 11);
    EXPECT_EQ(shell.askedFlags, (std::vector<UINT>{0x4001, 0x4001}));
}

TEST_F(CAppKnownIconTest, TheShellIsAskedOnce)
{
    SAppsList& entry = app.Add(L"\\Start\\Calendar.lnk");
    app.AddSlot(0);
    shell.indexes[L"\\Start\\Calendar.lnk"] = 22;
    EXPECT_EQ(app.KnownApplicationIcon(0), 22);
    shell.indexes[L"\\Start\\Calendar.lnk"] = 33;
    EXPECT_EQ(app.KnownApplicationIcon(0), 22);
    EXPECT_EQ(entry.icon, 22);
    EXPECT_EQ(shell.askedPaths.size(), 1u);
}

TEST_F(CAppKnownIconTest, AnIconThatIsThereAlreadyIsTaken)
{
    app.Add(L"\\x.lnk").icon = 5;
    app.AddSlot(0);
    EXPECT_EQ(app.KnownApplicationIcon(0), 5);
    EXPECT_TRUE(shell.askedPaths.empty());
}

TEST_F(CAppKnownIconTest, AnEntryThatTheShellDoesNotKnowHasNone)
{
    app.Add(L"\\x.lnk");
    app.AddSlot(0);
    EXPECT_EQ(app.KnownApplicationIcon(0), -1);
}

TEST_F(CAppKnownIconTest, AnEmptySlotHasNone)
{
    app.Add(L"\\x.lnk").icon = 5;
    app.AddSlot(-1);
    EXPECT_EQ(app.KnownApplicationIcon(0), -1);
    EXPECT_TRUE(shell.askedPaths.empty());
}

TEST_F(CAppKnownIconTest, ASlotThatDoesNotExistHasNone)
{
    for (const uint32_t slot : {0u, 7u, 8u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu})
        EXPECT_EQ(app.KnownApplicationIcon(slot), -1) << slot;
}

TEST_F(CAppKnownIconTest, ASlotThatALongerListLeftBehindHasNone)
{
    app.Add(L"\\x.lnk").icon = 5;
    for (const int index : {1, 2, 0x7FFFFFFF, -2, static_cast<int>(0x80000000)})
        app.AddSlot(index);
    for (uint32_t slot = 0; slot < 5; slot++)
        EXPECT_EQ(app.KnownApplicationIcon(slot), -1) << slot;
}

TEST_F(CAppKnownIconTest, TheApplicationIsWhatPagesAsk)
{
    app.Add(L"\\x.lnk").icon = 5;
    app.AddSlot(0);
    ASSERT_NE(IPageHost::Current(), nullptr);
    EXPECT_EQ(IPageHost::Current()->KnownApplicationIcon(0), 5);
}
