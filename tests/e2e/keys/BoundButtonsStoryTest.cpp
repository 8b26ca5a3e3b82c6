// Two buttons from their binding in the dialog by keys, over real presses in another program, to their
// return.
// device's executable: pocketpc
#include "rig/ChildProcess.h"
#include "tests/e2e/keys/KeysScreen.h"

using namespace rig;

class BoundButtonsStoryTest : public KeysScreen
{
  protected:
    static inline const std::wstring notepadFile = L"C:\\windows\\system32\\notepad.exe";
    HWND dialog = nullptr;
    HWND buttons = nullptr;
    HWND press = nullptr;
    HWND hold = nullptr;

    // With all values that a handheld's shell keeps.
    static Values AddWhole(const std::wstring& key, const std::wstring& name, const std::wstring& command)
    {
        AddButton(key, name, command, command, 0);
        const std::wstring path = L"Software\\Microsoft\\Shell\\Keys\\" + key;
        const DWORD none = 0;
        for (const wchar_t* number : {L"Flags", L"BtnWnd"}) {
            RegSetKeyValueW(HKEY_LOCAL_MACHINE, path.c_str(), number, REG_DWORD, &none, sizeof none);
        }
        RegSetKeyValueW(HKEY_LOCAL_MACHINE, path.c_str(), L"WndCls", REG_SZ, L"", sizeof(wchar_t));
        return ButtonValues(key);
    }
    void Open()
    {
        ASSERT_TRUE(ComeToFront());
        dialog = OpenByMenu();
        ASSERT_TRUE(dialog);
        buttons = GetDlgItem(dialog, IDC_KEY_LIST);
        press = GetDlgItem(dialog, IDC_PRESS_ACTION);
        hold = GetDlgItem(dialog, IDC_HOLD_ACTION);
        ASSERT_TRUE(HasFocus(buttons));
    }
    // In the list of what a press does; a letter or a position leads to the action.
    void ChoosePress(WORD key, const wchar_t* action)
    {
        PressKey(VK_RETURN);
        ASSERT_TRUE(HasFocus(press));
        PressKey(key);
        EXPECT_TRUE(Shows(press, action));
    }
    void SelectSecondButton()
    {
        PressChord({VK_SHIFT, VK_TAB});
        ASSERT_TRUE(HasFocus(buttons));
        PressKey(VK_DOWN);
        EXPECT_TRUE(Shows(buttons, L"Button 2"));
    }
    // The last but one of the programs.
    void PickWineMineForTheHold()
    {
        PressKey(VK_TAB);
        ASSERT_TRUE(HasFocus(hold));
        PressKey(VK_DOWN, 2);
        const HWND picker = WaitForPicker(dialog);
        ASSERT_TRUE(picker);
        PressKey(VK_END);
        PressKey(VK_UP);
        PressKey(VK_F1);
        ASSERT_TRUE(WaitFor([=] { return !IsWindow(picker); }));
        EXPECT_TRUE(Shows(hold, L"WineMine"));
    }
    static HWND BringNotepad()
    {
        const HWND window = WaitForTopWindow({.className = L"Notepad"});
        EXPECT_TRUE(Raise(window));
        return window;
    }
};

TEST_F(BoundButtonsStoryTest, BoundPressedHeldAndGivenBack)
{
    const Values first = AddWhole(L"40C1", L"Button 1", L"\\Windows\\notepad.exe");
    const Values second = AddWhole(L"40C2", L"Button 2", L"\\Windows\\regedit.exe");
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_NO_FATAL_FAILURE(ChoosePress('C', L"Close current"));
    ASSERT_NO_FATAL_FAILURE(SelectSecondButton());
    ASSERT_NO_FATAL_FAILURE(ChoosePress('H', L"Handle, do nothing"));
    ASSERT_NO_FATAL_FAILURE(PickWineMineForTheHold());
    ASSERT_TRUE(Close(dialog, VK_F1));

    const ChildProcess one(notepadFile, L"");
    const HWND closed = BringNotepad();
    PressKey(VK_F5);
    EXPECT_TRUE(WaitFor([=] { return !IsWindow(closed); }));
    const ChildProcess two(notepadFile, L"");
    const HWND notepad = BringNotepad();
    KeyDown(VK_F6);
    const HWND mine = WaitForTopWindow({.className = L"WineMine"});
    KeyUp(VK_F6);
    EXPECT_TRUE(mine);
    EXPECT_TRUE(IsWindow(notepad));
    for (HWND window : {mine, notepad}) {
        PostMessageW(window, WM_CLOSE, 0, 0);
        EXPECT_TRUE(WaitFor([=] { return !IsWindow(window); }));
    }

    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_NO_FATAL_FAILURE(ChoosePress('D', L"Don't handle"));
    ASSERT_NO_FATAL_FAILURE(SelectSecondButton());
    ASSERT_NO_FATAL_FAILURE(ChoosePress('D', L"Don't handle"));
    ASSERT_TRUE(Close(dialog, VK_F1));
    EXPECT_EQ(ButtonValues(L"40C1"), first);
    EXPECT_EQ(ButtonValues(L"40C2"), second);
    PressKey(VK_F5);
    const HWND again = WaitForTopWindow({.className = L"Notepad"});
    EXPECT_TRUE(again);
    PostMessageW(again, WM_CLOSE, 0, 0);
    EXPECT_TRUE(WaitFor([=] { return !IsWindow(again); }));
}
