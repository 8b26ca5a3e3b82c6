// The hardware keys dialog of a Pocket PC: what it shows, and what its commands do.
#include "tests/ui/keys/ButtonsTest.h"

using Texts = std::vector<std::wstring>;

class CDialogKeysTest : public ButtonsTest
{
  protected:
    // In the order of their names: A, b, C.
    void AddButtons()
    {
        AddButton(L"40C2", L"b", L"\"\\Program Files\\Quorvane.exe\" 194 9*11");
        AddButton(L"40C3", L"C", L"\\Windows\\calendar.exe");
        AddButton(L"40C1", L"A", L"\"\\Quorvane.exe\" 193 3*7");
    }
    void AddBound(const std::wstring& tail) { AddButton(L"40C1", L"A", L"\"\\Quorvane.exe\" 193 " + tail); }
};

TEST_F(CDialogKeysTest, ItBeginsWithTheFirstButtonByName)
{
    AddButtons();
    OpenKeys([](Opened& opened) {
        EXPECT_EQ(Text(opened.dialog), L"Hardware keys");
        EXPECT_EQ(Items(opened, keyList), (Texts{L"A", L"b", L"C"}));
        EXPECT_EQ(Selected(opened, keyList), 0);
        EXPECT_EQ(Shown(opened, pressList), L"Task manager");
        EXPECT_EQ(Shown(opened, holdList), L"Close current");
        EXPECT_EQ(GetFocus(), Control(opened, keyList));
        EXPECT_EQ(Notice(opened.app), L"");
    });
}

TEST_F(CDialogKeysTest, APressCanLockTheKeysAndAHoldCannot)
{
    AddBound(L"0*0");
    const Texts texts = {L"Don't handle",          L"Handle, do nothing", L"Start application",
                         L"Task manager",          L"Process viewer",     L"System information",
                         L"App. Launcher",         L"Close current",      L"Close all",
                         L"Close all but current", L"Screen rotate left", L"Screen rotate right"};
    OpenKeys([&](Opened& opened) {
        EXPECT_EQ(Items(opened, holdList), texts);
        Texts all = texts;
        all.emplace_back(L"Lock keys");
        EXPECT_EQ(Items(opened, pressList), all);
        EXPECT_EQ(Selected(opened, pressList), 0);
        EXPECT_EQ(Selected(opened, holdList), 0);
    });
}

TEST_F(CDialogKeysTest, WithoutButtonsThatIsToldAndTheDialogStays)
{
    const int result = OpenKeys([&](Opened& opened) {
        EXPECT_EQ(Notice(opened.app), L"No keys found");
        EXPECT_TRUE(Items(opened, keyList).empty());
        EXPECT_EQ(Selected(opened, pressList), 0);
        EXPECT_EQ(Selected(opened, holdList), 0);
        Run(opened, showKey);
        Choose(opened, pressList, 3);
        Choose(opened, holdList, 2);
        EXPECT_EQ(opened.app.dialogs->Count(), 1u) << "there is nothing to start by";
        Run(opened, IDOK);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_TRUE(buttons.writes.empty());
}

TEST_F(CDialogKeysTest, EveryButtonShowsItsOwnActions)
{
    AddButtons();
    OpenKeys([](Opened& opened) {
        SelectKey(opened, 1);
        EXPECT_EQ(Shown(opened, pressList), L"Close all but current");
        EXPECT_EQ(Shown(opened, holdList), L"Screen rotate right");
        SelectKey(opened, 2);
        EXPECT_EQ(Shown(opened, pressList), L"Don't handle");
        EXPECT_EQ(Shown(opened, holdList), L"Don't handle");
        SelectKey(opened, 0);
        EXPECT_EQ(Shown(opened, pressList), L"Task manager");
        EXPECT_EQ(Shown(opened, holdList), L"Close current");
    });
}

// A control tells of more than a new selection.
TEST_F(CDialogKeysTest, OnlyANewSelectionCounts)
{
    AddButtons();
    OpenKeys([](Opened& opened) {
        SendMessageW(Control(opened, keyList), LB_SETCURSEL, 1, 0);
        SendMessageW(Control(opened, pressList), CB_SETCURSEL, 2, 0);
        SendMessageW(Control(opened, holdList), CB_SETCURSEL, 5, 0);
        for (const int list : {keyList, pressList, holdList, 1008, 1009}) {
            for (const int code : {0, LBN_SETFOCUS, LBN_KILLFOCUS, CBN_DROPDOWN, CBN_CLOSEUP, 0xFFFE}) {
                SendMessageW(opened.dialog, WM_COMMAND, MAKEWPARAM(list, code),
                             reinterpret_cast<LPARAM>(Control(opened, list)));
            }
        }
        for (const UINT command : {0u, 3u, 112u, 113u, 121u, 175u, 177u, 0x801Fu}) {
            Run(opened, command);
        }
        EXPECT_EQ(opened.app.dialogs->Count(), 1u);
        EXPECT_EQ(Selected(opened, pressList), 2);
        EXPECT_EQ(Selected(opened, holdList), 5);
        Run(opened, showKey);
        EXPECT_EQ(Selected(opened, pressList), 9);
        EXPECT_EQ(Selected(opened, holdList), 11);
        EXPECT_TRUE(IsWindow(opened.dialog));
    });
}

TEST_F(CDialogKeysTest, AChosenActionIsKeptWithItsButton)
{
    AddButtons();
    OpenKeys([](Opened& opened) {
        Choose(opened, pressList, 12);
        Choose(opened, holdList, 1);
        SelectKey(opened, 2);
        EXPECT_EQ(Shown(opened, pressList), L"Don't handle");
        Choose(opened, holdList, 4);
        SelectKey(opened, 0);
        EXPECT_EQ(Shown(opened, pressList), L"Lock keys");
        EXPECT_EQ(Shown(opened, holdList), L"Handle, do nothing");
        SelectKey(opened, 2);
        EXPECT_EQ(Shown(opened, pressList), L"Don't handle");
        EXPECT_EQ(Shown(opened, holdList), L"Process viewer");
    });
}

TEST_F(CDialogKeysTest, AnActionThatIsNotListedSelectsNothing)
{
    AddButton(L"40C1", L"A", L"\"\\Quorvane.exe\" 193 \\A.exe*\\B.exe");
    AddButton(L"40C2", L"B", L"\"\\Quorvane.exe\" 194 13*12");
    AddButton(L"40C3", L"C", L"\"\\Quorvane.exe\" 195 99999999999*13");
    OpenKeys([](Opened& opened) {
        for (const int row : {1, 2}) {
            SelectKey(opened, row);
            EXPECT_EQ(Selected(opened, pressList), -1) << row << ", although the name of A's stands there";
            EXPECT_EQ(Selected(opened, holdList), -1) << row;
        }
        Choose(opened, pressList, -1);
        Choose(opened, pressList, 4);
        EXPECT_EQ(Shown(opened, pressList), L"Process viewer");
    });
}

TEST_F(CDialogKeysTest, EnterGoesFromTheButtonsToThePressAndThenToTheControl)
{
    AddButtons();
    OpenKeys([](Opened& opened) {
        Run(opened, enter);
        EXPECT_EQ(GetFocus(), Control(opened, pressList));
        for (const int list : {pressList, holdList}) {
            SetFocus(Control(opened, list));
            SPY(SendMessageW) send;
            Run(opened, enter);
            int keys = 0;
            for (const auto& [window, message, wParam, lParam] : send.calls) {
                keys += message == WM_KEYDOWN && window == Control(opened, list) && wParam == VK_RETURN;
            }
            EXPECT_EQ(keys, 1);
            EXPECT_EQ(GetFocus(), Control(opened, list));
        }
    });
}

// As its loop reads it: other loops know nothing of the dialog's keys.
TEST_F(CDialogKeysTest, TheKeyEnterIsTheDialogs)
{
    AddButtons();
    InProgram([](ProgramApp& app) {
        app.Later([&] {
            Opened opened = {app, app.dialogs->At(0)->Window()};
            SetFocus(Control(opened, keyList));
            PostMessageW(Control(opened, keyList), WM_KEYDOWN, VK_RETURN, 0x1C0001);
            app.Later([=, &app] {
                EXPECT_EQ(GetFocus(), Control(opened, pressList));
                EXPECT_EQ(app.dialogs->Count(), 1u) << "it closes nothing";
                Run(opened, IDCANCEL);
            });
        });
        EXPECT_EQ(CDialogKeys::Show(app.startPrograms), IDCANCEL);
    });
}
