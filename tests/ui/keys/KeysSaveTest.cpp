// What the hardware keys dialog of a Pocket PC writes, and when.
#include "tests/ui/keys/ButtonsTest.h"

class KeysSaveTest : public ButtonsTest
{
  protected:
    const std::wstring before = L"\"\\Quorvane.exe\" 193 3*7";

    KeysSaveTest()
    {
        AddButton(L"40C1", L"A", before);
        AddButton(L"40C2", L"B", L"\\Windows\\calendar.exe");
    }
    // The end of what the shell runs now.
    bool RunsNow(const std::wstring& button, const std::wstring& tail) const
    {
        return buttons.Text(button, L"Default").ends_with(tail);
    }
};

TEST_F(KeysSaveTest, BothConfirmationsSaveAllButtons)
{
    int hold = 4;
    for (const UINT command : {1u, 6u}) {
        AddButton(L"40C1", L"A", before); // what this program saves is no command of Quorvane.exe
        const int result = OpenKeys([&](Opened& opened) {
            Choose(opened, pressList, 8);
            SelectKey(opened, 1);
            Choose(opened, pressList, 1);
            Choose(opened, holdList, hold);
            EXPECT_TRUE(buttons.writes.empty()) << "not yet";
            Run(opened, command);
        });
        EXPECT_EQ(result, IDOK);
        EXPECT_TRUE(RunsNow(L"40C1", L"\" 193 8*7"));
        EXPECT_TRUE(RunsNow(L"40C2", L"\" 194 1*" + std::to_wstring(hold)));
        hold = 5;
        buttons.writes.clear();
    }
}

TEST_F(KeysSaveTest, CancellingWritesNothing)
{
    const int result = OpenKeys([](Opened& opened) {
        Choose(opened, pressList, 8);
        SelectKey(opened, 1);
        Choose(opened, holdList, 4);
        Choose(opened, pressList, 0);
        Run(opened, IDCANCEL);
    });
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_TRUE(buttons.writes.empty());
    EXPECT_EQ(buttons.Text(L"40C1", L"Default"), before);
}

TEST_F(KeysSaveTest, AnApplicationIsSavedByItsShortcut)
{
    menu.Add(L"Calculator.lnk", L"\\Windows\\calc.exe");
    OpenKeys([](Opened& opened) {
        ChooseApplication(opened, holdList, [](Opened& picker) { Run(picker, IDOK); });
        Run(opened, IDOK);
    });
    EXPECT_TRUE(RunsNow(L"40C1", L"\" 193 3*\\Menu\\Calculator.lnk"));
}

TEST_F(KeysSaveTest, WhatCannotBeSavedIsToldAndNotLost)
{
    const int result = OpenKeys([&](Opened& opened) {
        Choose(opened, pressList, 8);
        for (const auto& [key, notice] : {std::pair{L"", L"Registry error: Can't open key"},
                                          std::pair{L"40C1", L"Registry error: Can't save key"}}) {
            buttons.refused = {key};
            Run(opened, IDOK);
            EXPECT_EQ(Notice(opened.app), notice);
            EXPECT_TRUE(IsWindow(opened.dialog));
            EXPECT_EQ(Shown(opened, pressList), L"Close all");
            EXPECT_TRUE(buttons.writes.empty());
        }
        buttons.refused.clear();
        Run(opened, IDOK);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_TRUE(RunsNow(L"40C1", L"\" 193 8*7"));
}

TEST_F(KeysSaveTest, ADialogThatCannotSaveIsClosedByCancellingOnly)
{
    for (const wchar_t* key : {L"", L"40C1"}) {
        for (const UINT command : {1u, 6u}) {
            buttons.refused.clear();
            const int result = OpenKeys([&](Opened& opened) {
                Choose(opened, pressList, 8);
                buttons.refused = {key};
                Run(opened, command);
            });
            EXPECT_EQ(result, IDCANCEL);
        }
    }
    EXPECT_TRUE(buttons.writes.empty());
}
