// "Start application" in the hardware keys dialog: the picker, and the name behind the actions.
#include "tests/ui/keys/ButtonsTest.h"

class ApplicationChoiceTest : public ButtonsTest
{
  protected:
    ApplicationChoiceTest()
    {
        menu.Add(L"Calculator.lnk", L"\\Windows\\calc.exe");
        menu.Add(L"Games\\Solitaire 2.0.lnk", L"\\Windows\\solitaire.exe");
        AddButton(L"40C2", L"B", L"\"\\Quorvane.exe\" 194 5*6");
    }
    // The first button.
    void AddBound(const std::wstring& tail) { AddButton(L"40C1", L"A", L"\"\\Quorvane.exe\" 193 " + tail); }
    static void PickRow(Opened& picker, int row)
    {
        HWND list = GetDlgItem(picker.dialog, IDC_LIST);
        SendMessageW(list, LVM_SETSELECTIONMARK, 0, row);
        Run(picker, IDOK);
    }
    static void ExpectNoName(const Opened& opened, int list)
    {
        EXPECT_EQ(Shown(opened, list), L"Start application") << list;
        EXPECT_EQ(LastItem(opened, list), list == pressList ? 12 : 11);
    }
};

TEST_F(ApplicationChoiceTest, APickedApplicationIsShownByItsNameBehindTheActions)
{
    AddBound(L"3*3");
    OpenKeys([](Opened& opened) {
        ChooseApplication(opened, pressList, [](Opened& picker) { PickRow(picker, 0); });
        EXPECT_EQ(Shown(opened, pressList), L"Calculator");
        EXPECT_EQ(Selected(opened, pressList), 13);
        EXPECT_EQ(LastItem(opened, pressList), 13);
        EXPECT_EQ(Shown(opened, holdList), L"Task manager");
        EXPECT_EQ(LastItem(opened, holdList), 11);
        ChooseApplication(opened, holdList, [](Opened& picker) { PickRow(picker, 1); });
        EXPECT_EQ(Shown(opened, holdList), L"Solitaire 2.0");
        EXPECT_EQ(Selected(opened, holdList), 12);
        EXPECT_EQ(LastItem(opened, holdList), 12);
        EXPECT_EQ(Shown(opened, pressList), L"Calculator");
        EXPECT_EQ(LastItem(opened, pressList), 13) << "once";
    });
}

TEST_F(ApplicationChoiceTest, AnotherPickTakesThePlaceOfTheFirst)
{
    AddBound(L"\\Menu\\Old.lnk*3");
    OpenKeys([](Opened& opened) {
        EXPECT_EQ(Shown(opened, pressList), L"Old");
        ChooseApplication(opened, pressList, [&](Opened& picker) {
            EXPECT_EQ(LastItem(opened, pressList), 12) << "the old name has gone";
            PickRow(picker, 0);
        });
        EXPECT_EQ(Shown(opened, pressList), L"Calculator");
        EXPECT_EQ(LastItem(opened, pressList), 13);
    });
}

TEST_F(ApplicationChoiceTest, CancellingThePickerLeavesTheButtonUnhandled)
{
    AddBound(L"3*\\Menu\\Old.lnk");
    OpenKeys([](Opened& opened) {
        for (const int list : {pressList, holdList}) {
            ChooseApplication(opened, list, [](Opened& picker) { Run(picker, IDCANCEL); });
            EXPECT_EQ(Shown(opened, list), L"Don't handle");
            EXPECT_EQ(LastItem(opened, list), list == pressList ? 12 : 11);
        }
        SelectKey(opened, 1);
        SelectKey(opened, 0);
        EXPECT_EQ(Shown(opened, pressList), L"Don't handle");
        EXPECT_EQ(Shown(opened, holdList), L"Don't handle");
    });
}

TEST_F(ApplicationChoiceTest, OnlySelectChoosesInThePicker)
{
    AddBound(L"3*3");
    OpenKeys([](Opened& opened) {
        ChooseApplication(opened, pressList, [&](Opened& picker) {
            Run(picker, 114);
            EXPECT_TRUE(IsWindow(picker.dialog));
            EXPECT_EQ(opened.app.dialogs->Count(), 2u);
        });
        EXPECT_EQ(Shown(opened, pressList), L"Don't handle");
    });
}

TEST_F(ApplicationChoiceTest, TheKeyboardComesBackToTheList)
{
    AddBound(L"3*3");
    OpenKeys([](Opened& opened) {
        for (const int list : {pressList, holdList}) {
            SetFocus(Control(opened, list));
            ChooseApplication(opened, list, [&](Opened& picker) {
                EXPECT_EQ(GetFocus(), GetDlgItem(picker.dialog, IDC_LIST));
                Run(picker, IDOK);
            });
            EXPECT_EQ(GetFocus(), Control(opened, list));
            EXPECT_EQ(GetActiveWindow(), opened.dialog);
        }
    });
}

TEST_F(ApplicationChoiceTest, TheNameIsThePathWithoutFoldersAndType)
{
    const struct
    {
        const wchar_t* path;
        const wchar_t* name;
    } cases[] = {{L"\\Windows\\Start Menu\\Calculator.lnk", L"Calculator"},
                 {L"\\a\\b.c.exe", L"b.c"},
                 {L"\\Folder.d\\Program", L"Folder"},
                 {L"\\x.exe", L"x"},
                 {L"C:\\Игры\\A & B.lnk", L"A & B"}};
    for (const auto& each : cases) {
        AddBound(std::wstring(each.path) + L"*" + each.path);
        OpenKeys([&](Opened& opened) {
            EXPECT_EQ(Shown(opened, pressList), each.name);
            EXPECT_EQ(Shown(opened, holdList), each.name);
            EXPECT_EQ(Selected(opened, pressList), 13);
            EXPECT_EQ(Selected(opened, holdList), 12);
        });
    }
}

TEST_F(ApplicationChoiceTest, APathWithoutADotOrABackslashHasNoName)
{
    for (const wchar_t* path : {L"\\Windows\\Program", L"calc.exe", L"program", L"a.b\\c", L".lnk"}) {
        AddBound(std::wstring(path) + L"*" + path);
        OpenKeys([&](Opened& opened) {
            ExpectNoName(opened, pressList);
            ExpectNoName(opened, holdList);
        });
    }
}

TEST_F(ApplicationChoiceTest, TheNameOfAButtonBeforeGoesWithOneThatHasNone)
{
    AddBound(L"\\A.exe*\\A.exe");
    AddButton(L"40C2", L"B", L"\"\\Quorvane.exe\" 194 2*calc");
    OpenKeys([](Opened& opened) {
        SelectKey(opened, 1);
        ExpectNoName(opened, pressList);
        ExpectNoName(opened, holdList);
        SelectKey(opened, 0);
        EXPECT_EQ(Selected(opened, pressList), 13);
        EXPECT_EQ(Selected(opened, holdList), 12);
    });
}

TEST_F(ApplicationChoiceTest, EveryButtonShowsItsOwnApplication)
{
    AddBound(L"\\A.exe*\\A2.exe");
    AddButton(L"40C2", L"B", L"\"\\Quorvane.exe\" 194 \\B.exe*\\B2.exe");
    OpenKeys([](Opened& opened) {
        for (int i = 0; i < 3; i++) {
            SelectKey(opened, 1);
            EXPECT_EQ(Shown(opened, pressList), L"B");
            EXPECT_EQ(Shown(opened, holdList), L"B2");
            SelectKey(opened, 0);
            EXPECT_EQ(Shown(opened, pressList), L"A");
            EXPECT_EQ(Shown(opened, holdList), L"A2");
            EXPECT_EQ(LastItem(opened, pressList), 13);
            EXPECT_EQ(LastItem(opened, holdList), 12);
        }
    });
}

TEST_F(ApplicationChoiceTest, SelectingTheNameAgainChangesNothing)
{
    AddBound(L"\\A.exe*\\A2.exe");
    OpenKeys([&](Opened& opened) {
        Choose(opened, pressList, 13);
        Choose(opened, holdList, 12);
        EXPECT_EQ(opened.app.dialogs->Count(), 1u);
        EXPECT_EQ(Shown(opened, pressList), L"A");
        EXPECT_EQ(Shown(opened, holdList), L"A2");
    });
}

// The name stays in the list for a button that starts nothing, and does nothing there.
TEST_F(ApplicationChoiceTest, TheNameOfAnotherButtonCannotBeChosen)
{
    AddBound(L"\\A.exe*\\A2.exe");
    OpenKeys([&](Opened& opened) {
        SelectKey(opened, 1);
        EXPECT_EQ(Shown(opened, pressList), L"System information");
        EXPECT_EQ(LastItem(opened, pressList), 13);
        Choose(opened, pressList, 13);
        Choose(opened, holdList, 12);
        EXPECT_EQ(opened.app.dialogs->Count(), 1u);
        Run(opened, showKey);
        EXPECT_EQ(Shown(opened, pressList), L"System information");
        EXPECT_EQ(Shown(opened, holdList), L"App. Launcher");
    });
}

TEST_F(ApplicationChoiceTest, AnotherActionTakesTheNameAway)
{
    AddBound(L"\\A.exe*\\A2.exe");
    OpenKeys([](Opened& opened) {
        Choose(opened, pressList, 4);
        EXPECT_EQ(Shown(opened, pressList), L"Process viewer");
        EXPECT_EQ(LastItem(opened, pressList), 12);
        EXPECT_EQ(LastItem(opened, holdList), 12) << "its own stays";
        Choose(opened, holdList, 0);
        EXPECT_EQ(LastItem(opened, holdList), 11);
        Choose(opened, pressList, 12);
        EXPECT_EQ(Shown(opened, pressList), L"Lock keys");
    });
}
