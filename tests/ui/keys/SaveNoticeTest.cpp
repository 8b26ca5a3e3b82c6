// What the user is told when the buttons cannot be written.
#include "keys/CHardwareKeys.h"
#include "tests/support/ScriptedButtons.h"
#include "tests/support/ScriptedClaims.h"
#include "tests/ui/ProgramTest.h"

class SaveNoticeTest : public ProgramTest
{
  protected:
    ScriptedButtons buttons;
    ScriptedClaims claims;
    CHardwareKeys keys;

    // Saves one button of three with a new action; returns what the user was told.
    std::wstring Told()
    {
        for (const wchar_t* name : {L"40C1", L"40C2", L"40C3"}) {
            buttons.Add(name);
        }
        std::wstring told;
        InProgram([&](ProgramApp& app) {
            const std::set<std::wstring> refused = buttons.refused;
            buttons.refused.clear();
            keys.Load();
            ASSERT_EQ(keys.Count(), 3u);
            keys.At(1).pressAction = 4;
            buttons.refused = refused;
            SPY(SetTimer) timer;
            keys.Save();
            told = Notice(app);
            if (!told.empty()) {
                ASSERT_EQ(timer.calls.size(), 1u);
                EXPECT_EQ(std::get<2>(timer.calls[0]), 3000u);
            }
        });
        return told;
    }
};

TEST_F(SaveNoticeTest, WhatIsSavedIsNotTold)
{
    EXPECT_EQ(Told(), L"");
    EXPECT_FALSE(buttons.writes.empty());
}

TEST_F(SaveNoticeTest, TheShellsKeyCannotBeOpened)
{
    buttons.refused = {L""};
    EXPECT_EQ(Told(), L"Registry error: Can't open key");
    EXPECT_TRUE(buttons.writes.empty());
}

TEST_F(SaveNoticeTest, AButtonCannotBeOpened)
{
    buttons.refused = {L"40C3"};
    EXPECT_EQ(Told(), L"Registry error: Can't save key");
    EXPECT_EQ(buttons.Text(L"40C2", L"Default").substr(0, 1), L"\"") << "the ones before stay written";
}
