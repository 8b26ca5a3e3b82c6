// The hardware keys dialog of a Smartphone by its keys.
// profiles: smartphone
// device's executable: smartphone
#include "tests/e2e/ScreenText.h"
#include "tests/e2e/keys/KeysScreen.h"

using namespace rig;

class HomeKeyE2eTest : public KeysScreen
{
  protected:
    HWND dialog = nullptr;
    HWND list = nullptr;

    HomeKeyE2eTest() { Forget(); }
    ~HomeKeyE2eTest() override { Forget(); }

    static constexpr wchar_t settings[] = L"Software\\Quorvane\\HomeKeySetting";
    static void Forget() { RegDeleteTreeW(HKEY_CURRENT_USER, settings); }
    // -1: nothing was ever bound.
    static int BoundCommand()
    {
        DWORD number = 0;
        DWORD size = sizeof number;
        return RegGetValueW(HKEY_CURRENT_USER, settings, L"HomeKeyCommand", RRF_RT_REG_DWORD, nullptr,
                            &number, &size) == ERROR_SUCCESS
                   ? static_cast<int>(number)
                   : -1;
    }
    static std::wstring BoundFile()
    {
        wchar_t text[300] = {};
        DWORD size = sizeof text;
        RegGetValueW(HKEY_CURRENT_USER, settings, L"HomeKeyFile", RRF_RT_REG_SZ, nullptr, text, &size);
        return text;
    }

    void Open()
    {
        dialog = OpenByMenu();
        ASSERT_TRUE(dialog);
        EXPECT_EQ(TextOf(dialog), L"Hardware keys");
        EXPECT_FALSE(GetDlgItem(dialog, IDC_KEY_LIST)) << "the Pocket PC's";
        list = GetDlgItem(dialog, IDC_HOME_ACTION);
        ASSERT_TRUE(list && HasFocus(list));
    }
};

TEST_F(HomeKeyE2eTest, TheKeyIsBoundAndGivenBack)
{
    ASSERT_NO_FATAL_FAILURE(Open());
    EXPECT_TRUE(Shows(list, L"Don't handle"));
    PressKey(VK_END);
    EXPECT_TRUE(Shows(list, L"Lock keys"));
    EXPECT_EQ(BoundCommand(), -1);
    ASSERT_TRUE(Close(dialog, VK_F1));
    EXPECT_EQ(BoundCommand(), 12);
    EXPECT_EQ(BoundFile(), L"");

    ASSERT_NO_FATAL_FAILURE(Open());
    EXPECT_TRUE(Shows(list, L"Lock keys"));
    PressKey(VK_HOME);
    EXPECT_TRUE(Shows(list, L"Don't handle"));
    ASSERT_TRUE(Close(dialog, VK_F1));
    EXPECT_EQ(BoundCommand(), 0);
}

TEST_F(HomeKeyE2eTest, CancellingWritesNothing)
{
    for (const WORD key : {WORD{VK_F2}, WORD{VK_ESCAPE}}) {
        ASSERT_NO_FATAL_FAILURE(Open());
        PressKey(VK_END);
        EXPECT_TRUE(Shows(list, L"Lock keys"));
        ASSERT_TRUE(Close(dialog, key));
        EXPECT_EQ(BoundCommand(), -1);
    }
}

TEST_F(HomeKeyE2eTest, AnApplicationIsPickedByKeysAndBack)
{
    ASSERT_NO_FATAL_FAILURE(Open());
    for (const bool selects : {false, true}) {
        PressKey(VK_HOME);
        EXPECT_TRUE(Shows(list, L"Don't handle"));
        PressKey(VK_DOWN, 2);
        const HWND picker = WaitForPicker(dialog);
        ASSERT_TRUE(picker);
        PressKey(selects ? VK_F1 : VK_ESCAPE);
        ASSERT_TRUE(WaitFor([=] { return !IsWindow(picker); }));
        EXPECT_TRUE(InFront(dialog));
        EXPECT_TRUE(HasFocus(list));
    }
    EXPECT_TRUE(WaitFor([&] { return Send(list, CB_GETCURSEL) == 13; }));
    const std::wstring name = TextOf(list);
    ASSERT_TRUE(Close(dialog, VK_F1));
    EXPECT_EQ(BoundCommand(), 2);
    EXPECT_TRUE(BoundFile().starts_with(L"\\Windows\\Start Menu\\")) << testing::PrintToString(BoundFile());
    EXPECT_TRUE(BoundFile().ends_with(L"\\" + name + L".lnk")) << testing::PrintToString(BoundFile());
}

TEST_F(HomeKeyE2eTest, ARefusalCanBeReadAlsoWhenTheDialogOpens)
{
    ASSERT_NO_FATAL_FAILURE(Open());
    PressKey(VK_END);
    PressKey(VK_UP, 3);
    EXPECT_TRUE(Shows(list, L"Don't handle"));
    HWND notice = WaitFor([&] { return program->Notice(); });
    ASSERT_TRUE(notice);
    EXPECT_TRUE(NoticeSays(main, notice, L"Command is disabled for Smartphone"));
    ASSERT_TRUE(Close(dialog, VK_F1));
    EXPECT_EQ(BoundCommand(), 9);
    ASSERT_TRUE(WaitFor([&] { return !program->Notice(); }));

    ASSERT_NO_FATAL_FAILURE(Open());
    notice = WaitFor([&] { return program->Notice(); });
    ASSERT_TRUE(notice);
    EXPECT_TRUE(NoticeSays(main, notice, L"Command is disabled for Smartphone"));
}
