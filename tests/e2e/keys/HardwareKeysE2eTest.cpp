// The hardware keys dialog of a Pocket PC by keys and by the stylus: binding buttons, and giving them back.
// profiles: pocketpc pocketpc-vga
// device's executable: pocketpc pocketpc-vga
#include "rig/Picture.h"
#include "tests/e2e/HandheldKeys.h"
#include "tests/e2e/ScreenText.h"
#include "tests/e2e/keys/KeysScreen.h"

using namespace rig;

class HardwareKeysE2eTest : public KeysScreen
{
  protected:
    HWND dialog = nullptr;
    HWND buttons = nullptr;
    HWND press = nullptr;
    HWND hold = nullptr;

    void Open()
    {
        dialog = OpenByMenu();
        ASSERT_TRUE(dialog);
        buttons = GetDlgItem(dialog, IDC_KEY_LIST);
        press = GetDlgItem(dialog, IDC_PRESS_ACTION);
        hold = GetDlgItem(dialog, IDC_HOLD_ACTION);
        ASSERT_TRUE(press && hold && HasFocus(buttons));
    }

    static void AddTwoButtons()
    {
        AddButton(L"40C1", L"Button 1", L"\\Windows\\Calendar.exe", L"\\Windows\\Calendar.exe", 2);
        AddButton(L"40C2", L"Button 2", L"\\Windows\\Notepad.exe", L"\\Windows\\Notepad.exe", 0);
    }

    // Lets a drop-down list fall by the stylus and taps an action in it.
    static void TapAction(HWND list, int item)
    {
        const RECT place = ScreenRectOf(list);
        Tap({place.right - 5, (place.top + place.bottom) / 2});
        ASSERT_TRUE(WaitFor([=] { return Send(list, CB_GETDROPPEDSTATE) != 0; }));
        const HWND open = FindTopWindow({.className = L"ComboLBox"});
        ASSERT_TRUE(open);
        const auto top = [=] { return static_cast<int>(Send(open, LB_GETTOPINDEX)); };
        Send(open, LB_SETTOPINDEX, static_cast<WPARAM>(item));
        const auto height = static_cast<int>(Send(open, LB_GETITEMHEIGHT));
        const RECT area = ScreenRectOf(open);
        Tap({(area.left + area.right) / 2, area.top + 2 + (item - top()) * height + height / 2});
        ASSERT_TRUE(WaitFor([=] { return Send(list, CB_GETDROPPEDSTATE) == 0; }));
    }
};

TEST_F(HardwareKeysE2eTest, EveryPagesMenuOpensIt)
{
    AddTwoButtons();
    for (const int page : pageRing) {
        ASSERT_TRUE(program->WaitForPage(page));
        ASSERT_NO_FATAL_FAILURE(Open()) << page;
        EXPECT_EQ(TextOf(dialog), L"Hardware keys");
        EXPECT_TRUE(EqualRect(&static_cast<const RECT&>(ScreenRectOf(dialog)),
                              &static_cast<const RECT&>(ScreenRectOf(main))));
        EXPECT_EQ(Send(buttons, LB_GETCOUNT), 2);
        PressKey(VK_ESCAPE);
        ASSERT_TRUE(WaitFor([&] { return !IsWindow(dialog); }));
        EXPECT_TRUE(InFront(main));
        PressKey(VK_RIGHT);
    }
}

TEST_F(HardwareKeysE2eTest, ButtonsAreBoundAndGivenBackByKeys)
{
    AddTwoButtons();
    const Values first = ButtonValues(L"40C1");
    const Values second = ButtonValues(L"40C2");

    ASSERT_NO_FATAL_FAILURE(Open());
    EXPECT_TRUE(Shows(buttons, L"Button 1"));
    EXPECT_TRUE(Shows(press, L"Don't handle"));
    PressKey(VK_DOWN);
    EXPECT_TRUE(Shows(buttons, L"Button 2"));
    PressKey(VK_RETURN);
    ASSERT_TRUE(HasFocus(press));
    PressKey(VK_END);
    EXPECT_TRUE(Shows(press, L"Lock keys"));
    PressKey(VK_TAB);
    ASSERT_TRUE(HasFocus(hold));
    PressKey(VK_DOWN);
    EXPECT_TRUE(Shows(hold, L"Handle, do nothing"));
    EXPECT_EQ(ButtonValues(L"40C2"), second) << "not before it is confirmed";
    ASSERT_TRUE(Close(dialog, VK_F1));
    EXPECT_EQ(ButtonValues(L"40C1"), first);
    EXPECT_EQ(Command(L"40C2"), OwnCommand(L"194 12*1"));

    ASSERT_NO_FATAL_FAILURE(Open());
    PressKey(VK_DOWN);
    EXPECT_TRUE(Shows(press, L"Lock keys"));
    EXPECT_TRUE(Shows(hold, L"Handle, do nothing"));
    PressKey(VK_RETURN);
    ASSERT_TRUE(HasFocus(press));
    PressKey(VK_HOME);
    EXPECT_TRUE(Shows(press, L"Don't handle"));
    ASSERT_TRUE(Close(dialog, VK_F1));
    const Values back = ButtonValues(L"40C2");
    EXPECT_EQ(back.at(L"Default"), L"\\Windows\\Notepad.exe");
    EXPECT_EQ(back.at(L"Flags"), L"0");
}

TEST_F(HardwareKeysE2eTest, CancellingWritesNothing)
{
    AddTwoButtons();
    const Values before = ButtonValues(L"40C1");
    for (const WORD key : {WORD{VK_F2}, WORD{VK_ESCAPE}}) {
        ASSERT_NO_FATAL_FAILURE(Open());
        PressKey(VK_RETURN);
        ASSERT_TRUE(HasFocus(press));
        PressKey(VK_END);
        EXPECT_TRUE(Shows(press, L"Lock keys"));
        ASSERT_TRUE(Close(dialog, key));
        EXPECT_EQ(ButtonValues(L"40C1"), before);
    }
}

TEST_F(HardwareKeysE2eTest, AButtonIsBoundByTheStylus)
{
    AddTwoButtons();
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_NO_FATAL_FAILURE(TapAction(press, 7));
    EXPECT_TRUE(Shows(press, L"Close current"));
    ASSERT_NO_FATAL_FAILURE(TapAction(hold, 3));
    EXPECT_TRUE(Shows(hold, L"Task manager"));
    Tap(SoftKeyPoint(BarOf(dialog), 0));
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(dialog); }));
    EXPECT_EQ(Command(L"40C1"), OwnCommand(L"193 7*3"));
}

TEST_F(HardwareKeysE2eTest, AnApplicationIsPickedByKeysAndBack)
{
    AddTwoButtons();
    ASSERT_NO_FATAL_FAILURE(Open());
    PressKey(VK_RETURN);
    ASSERT_TRUE(HasFocus(press));
    for (const bool selects : {false, true}) {
        PressKey(VK_HOME);
        EXPECT_TRUE(Shows(press, L"Don't handle"));
        PressKey(VK_DOWN);
        EXPECT_TRUE(Shows(press, L"Handle, do nothing"));
        PressKey(VK_DOWN);
        const HWND picker = WaitForPicker(dialog);
        ASSERT_TRUE(picker);
        EXPECT_EQ(TextOf(picker), L"Select an application");
        PressKey(VK_RETURN); // only the soft key selects
        PressKey(selects ? VK_F1 : VK_ESCAPE);
        ASSERT_TRUE(WaitFor([=] { return !IsWindow(picker); }));
        EXPECT_TRUE(InFront(dialog));
        EXPECT_TRUE(HasFocus(press));
        if (!selects) {
            EXPECT_TRUE(Shows(press, L"Don't handle"));
        }
    }
    EXPECT_TRUE(WaitFor([&] { return Send(press, CB_GETCOUNT) == 14 && Send(press, CB_GETCURSEL) == 13; }));
    const std::wstring name = TextOf(press);
    ASSERT_TRUE(Close(dialog, VK_F1));
    const std::wstring command = Command(L"40C1");
    EXPECT_TRUE(command.starts_with(OwnCommand(L"193 \\Windows\\Start Menu\\")))
        << testing::PrintToString(command);
    EXPECT_TRUE(command.ends_with(L"\\" + name + L".lnk*0")) << testing::PrintToString(command);
}

TEST_F(HardwareKeysE2eTest, WithoutButtonsTheNoticeCanBeRead)
{
    dialog = OpenByMenu();
    ASSERT_TRUE(dialog);
    const HWND notice = WaitFor([&] { return program->Notice(); });
    ASSERT_TRUE(notice);
    EXPECT_TRUE(NoticeSays(main, notice, L"No keys found"));
    EXPECT_TRUE(Close(dialog, VK_F1));
}
