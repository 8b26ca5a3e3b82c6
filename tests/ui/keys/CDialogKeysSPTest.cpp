// The hardware keys dialog of a Smartphone: what holding the Home key does.
// profiles: smartphone
#include "tests/support/ScriptedSettings.h"
#include "tests/ui/keys/KeysTest.h"

#include <algorithm>

class CDialogKeysSPTest : public KeysTest
{
  protected:
    ScriptedSettings settings;

    CDialogKeysSPTest() { menu.Add(L"Calculator.lnk", L"\\Windows\\calc.exe"); }
    void Bind(uint32_t command, const wchar_t* file = L"")
    {
        homeKey.command = command;
        homeKey.file = file;
    }
};

TEST_F(CDialogKeysSPTest, ItShowsWhatIsBound)
{
    Bind(4);
    OpenHomeKey([](Opened& opened) {
        EXPECT_EQ(Text(opened.dialog), L"Hardware keys");
        EXPECT_EQ(GetFocus(), Control(opened, homeList));
        EXPECT_EQ(Items(opened, homeList),
                  (std::vector<std::wstring>{L"Don't handle", L"Handle, do nothing", L"Start application",
                                             L"Task manager", L"Process viewer", L"System information",
                                             L"App. Launcher", L"Close current", L"Close all",
                                             L"Close all but current", L"Screen rotate left",
                                             L"Screen rotate right", L"Lock keys"}));
        EXPECT_EQ(Shown(opened, homeList), L"Process viewer");
        EXPECT_EQ(Notice(opened.app), L"");
    });
}

TEST_F(CDialogKeysSPTest, TheListIsAsWideAsTheDialogButForAMargin)
{
    OpenHomeKey([](Opened& opened) {
        EXPECT_EQ(WindowRect(opened.dialog), WindowRect(opened.app.MainWindow()));
        const RECT before = Place(opened, homeList);
        EXPECT_EQ(before.left, 7);
        EXPECT_EQ(before.right, ClientSize(opened.dialog).cx - 7);
        MoveWindow(opened.dialog, 0, 26, 320, 180, TRUE);
        EXPECT_EQ(Place(opened, homeList), (RECT{7, before.top, 313, before.bottom}));
    });
}

TEST_F(CDialogKeysSPTest, AnApplicationIsShownByItsName)
{
    Bind(2, L"\\Windows\\Start Menu\\Calendar.lnk");
    OpenHomeKey([](Opened& opened) {
        EXPECT_EQ(Shown(opened, homeList), L"Calendar");
        EXPECT_EQ(Selected(opened, homeList), 13);
        Choose(opened, homeList, 13);
        EXPECT_EQ(opened.app.dialogs->Count(), 1u);
        EXPECT_EQ(Shown(opened, homeList), L"Calendar");
        Choose(opened, homeList, 3);
        EXPECT_EQ(LastItem(opened, homeList), 12);
    });
    Bind(2, L"calendar");
    OpenHomeKey([](Opened& opened) { EXPECT_EQ(Shown(opened, homeList), L"Start application"); });
}

TEST_F(CDialogKeysSPTest, CommandsThatAreNotForASmartphoneAreRefusedInWords)
{
    for (const int action : {7, 9}) {
        Bind(4);
        OpenHomeKey([&](Opened& opened) {
            Choose(opened, homeList, action);
            EXPECT_EQ(Notice(opened.app), L"Command is disabled for Smartphone");
            EXPECT_EQ(Shown(opened, homeList), L"Don't handle");
        });
        Bind(static_cast<uint32_t>(action));
        OpenHomeKey([&](Opened& opened) {
            EXPECT_EQ(Notice(opened.app), L"Command is disabled for Smartphone") << "already bound";
            EXPECT_EQ(Shown(opened, homeList), L"Don't handle");
            opened.app.HideInfo();
            Run(opened, showKey);
            EXPECT_EQ(Notice(opened.app), L"Command is disabled for Smartphone");
            opened.app.HideInfo();
            Choose(opened, homeList, 8);
            EXPECT_EQ(Notice(opened.app), L"");
            EXPECT_EQ(Shown(opened, homeList), L"Close all");
        });
    }
}

TEST_F(CDialogKeysSPTest, ACommandThatIsNotListedSelectsNothing)
{
    for (const uint32_t command : {13u, 14u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFAu, 0xFFFFFFFFu}) {
        Bind(command);
        OpenHomeKey([&](Opened& opened) {
            EXPECT_EQ(Selected(opened, homeList), -1) << command;
            Choose(opened, homeList, 4);
            EXPECT_EQ(Shown(opened, homeList), L"Process viewer") << command;
        });
    }
}

TEST_F(CDialogKeysSPTest, AfterThePickerTheDialogHasItsPlaceAndTheKeyboard)
{
    for (const UINT answer : {IDOK, IDCANCEL}) {
        OpenHomeKey([&](Opened& opened) {
            ChooseApplication(opened, homeList, [&](Opened& picker) {
                MoveWindow(opened.dialog, 10, 40, 100, 100, FALSE);
                Run(picker, answer);
            });
            EXPECT_EQ(GetFocus(), Control(opened, homeList));
            EXPECT_EQ(GetActiveWindow(), opened.dialog);
            EXPECT_EQ(WindowRect(opened.dialog), WindowRect(opened.app.MainWindow()));
            EXPECT_EQ(Shown(opened, homeList), answer == IDOK ? L"Calculator" : L"Don't handle");
        });
    }
}

TEST_F(CDialogKeysSPTest, EnterGoesToTheList)
{
    OpenHomeKey([](Opened& opened) {
        SPY(SendMessageW) send;
        Run(opened, enter);
        EXPECT_EQ(std::count_if(send.calls.begin(), send.calls.end(),
                                [&](const auto& call) {
                                    return std::get<0>(call) == Control(opened, homeList) &&
                                           std::get<1>(call) == WM_KEYDOWN && std::get<2>(call) == VK_RETURN;
                                }),
                  1);
    });
}

// As its loop reads it: the dialog manager would confirm.
TEST_F(CDialogKeysSPTest, TheKeyEnterIsTheDialogs)
{
    InProgram([&](ProgramApp& app) {
        app.Later([&] {
            HWND dialog = app.dialogs->At(0)->Window();
            PostMessageW(GetDlgItem(dialog, homeList), WM_KEYDOWN, VK_RETURN, 0x1C0001);
            app.Later([=] { SendMessageW(dialog, WM_COMMAND, IDCANCEL, 0); });
        });
        EXPECT_EQ(CDialogKeys_SP::Show(app.startPrograms, homeKey), IDCANCEL);
    });
    EXPECT_EQ(settings.Command(), -1);
}

TEST_F(CDialogKeysSPTest, OnlyANewSelectionCounts)
{
    Bind(4);
    OpenHomeKey([](Opened& opened) {
        SendMessageW(Control(opened, homeList), CB_SETCURSEL, 2, 0);
        for (const int code : {0, CBN_SETFOCUS, CBN_KILLFOCUS, CBN_DROPDOWN, CBN_CLOSEUP}) {
            SendMessageW(opened.dialog, WM_COMMAND, MAKEWPARAM(homeList, code),
                         reinterpret_cast<LPARAM>(Control(opened, homeList)));
        }
        for (const UINT command : {0u, 3u, 112u, 121u, 175u, 177u, 1007u, 0xFFFFu}) {
            SendMessageW(opened.dialog, WM_COMMAND, MAKEWPARAM(command, CBN_SELCHANGE), 0);
        }
        EXPECT_EQ(Selected(opened, homeList), 2);
        Run(opened, showKey);
        EXPECT_EQ(Selected(opened, homeList), 4);
    });
}
