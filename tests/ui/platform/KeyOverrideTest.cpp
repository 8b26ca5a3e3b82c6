// SHCMBM_OVERRIDEKEY: keys that a menu bar's owner takes over.
#include "tests/ui/UiTest.h"
#include "tests/ui/platform/bars.h"

class KeyOverrideTest : public UiTest
{
  protected:
    static constexpr LPARAM both = SHMBOF_NODEFAULT | SHMBOF_NOTIFY;

    HWND owner = Owner();
    HWND bar = Bar(owner);
    HWND edit = CreateWindowExW(0, L"EDIT", L"abc", WS_CHILD | WS_VISIBLE, 10, 60, 100, 20, owner, nullptr,
                                nullptr, nullptr);

    KeyOverrideTest()
    {
        SetActiveWindow(owner);
        SetFocus(edit);
        NameWindow(owner, "owner");
        NameWindow(edit, "edit");
    }
    ~KeyOverrideTest() override { DestroyWindow(owner); }

    static HWND Owner()
    {
        return CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 26, 240, 268, nullptr, nullptr,
                               nullptr, nullptr);
    }

    static HWND Bar(HWND owner)
    {
        SHMENUBARINFO info = {};
        info.cbSize = sizeof info;
        info.hwndParent = owner;
        info.nToolBarId = IDB_OWN_WORDS;
        info.hInstRes = GetModuleHandleW(nullptr);
        EXPECT_TRUE(SHCreateMenuBar(&info));
        return info.hwndMB;
    }

    LRESULT Override(WPARAM key, WORD mask, WORD bits) const
    {
        return SendMessageW(bar, SHCMBM_OVERRIDEKEY, key, MAKELPARAM(mask, bits));
    }

    static std::string Told(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        return NameOf(window) + " " + Numbers(message, wParam, lParam);
    }

    // What the message loop gets for a key message to the edit box, and whatever follows it.
    Events Got(UINT message, WPARAM key, LPARAM lParam) const
    {
        Events got;
        PostMessageW(edit, message, key, lParam);
        PostThreadMessageW(GetCurrentThreadId(), WM_APP, 0, 0);
        MSG taken = {};
        while (GetMessageW(&taken, nullptr, 0, 0) > 0 && taken.message != WM_APP) {
            const bool isKey = taken.message >= WM_KEYFIRST && taken.message <= WM_KEYLAST;
            if (isKey || taken.message == WM_HOTKEY || taken.message == WM_NULL) {
                got.push_back(taken.message == WM_NULL
                                  ? "nothing"
                                  : Told(taken.hwnd, taken.message, taken.wParam, taken.lParam));
            }
        }
        return got;
    }

    Events Pressed(WPARAM key = VK_ESCAPE, LPARAM lParam = 1) const { return Got(WM_KEYDOWN, key, lParam); }
    Events Released(WPARAM key = VK_ESCAPE) const { return Got(WM_KEYUP, key, 0xC0000001); }

    Events Plain(UINT message, LPARAM lParam, WPARAM key = VK_ESCAPE) const
    {
        return {Told(edit, message, key, lParam)};
    }
    Events HotKey(WORD modifiers, WORD key = VK_ESCAPE) const
    {
        return {Told(owner, WM_HOTKEY, key, MAKELPARAM(modifiers, key))};
    }
};

TEST_F(KeyOverrideTest, WithoutOneBackStaysAKey)
{
    EXPECT_EQ(Pressed(), Plain(WM_KEYDOWN, 1));
    EXPECT_EQ(Released(), Plain(WM_KEYUP, 0xC0000001));
}

TEST_F(KeyOverrideTest, BackReachesTheOwnerAsAHotKeyPressedHeldAndReleased)
{
    Override(VK_ESCAPE, both, both);
    EXPECT_EQ(Pressed(), HotKey(0));
    EXPECT_EQ(Pressed(VK_ESCAPE, 0x40000001), HotKey(0));
    EXPECT_EQ(Pressed(VK_ESCAPE, 0x40000001), HotKey(0));
    EXPECT_EQ(Released(), HotKey(MOD_KEYUP));
}

TEST_F(KeyOverrideTest, OtherKeysStayAsTheyAre)
{
    Override(VK_ESCAPE, both, both);
    for (const WPARAM key : {VK_RETURN, VK_BACK, VK_DOWN, static_cast<int>(L'A')}) {
        EXPECT_EQ(Pressed(key), Plain(WM_KEYDOWN, 1, key));
    }
}

TEST_F(KeyOverrideTest, OnlyTheMaskedBitsChangeAndTheOldOnesAreTold)
{
    EXPECT_EQ(Override(VK_ESCAPE, both, both), 0);
    EXPECT_EQ(Override(VK_ESCAPE, SHMBOF_NOTIFY, 0), both);
    EXPECT_EQ(Override(VK_ESCAPE, 0, both), SHMBOF_NODEFAULT);
    EXPECT_EQ(Pressed(), Events{"nothing"});
    EXPECT_EQ(Override(VK_ESCAPE, both, 0), SHMBOF_NODEFAULT);
    EXPECT_EQ(Pressed(), Plain(WM_KEYDOWN, 1));
}

TEST_F(KeyOverrideTest, AKeyThatKeepsItsDefaultIsToldOfToo)
{
    Override(VK_ESCAPE, both, SHMBOF_NOTIFY);
    EXPECT_EQ(Pressed(), Plain(WM_KEYDOWN, 1));
    EXPECT_EQ(Released(), (Events{HotKey(0)[0], Plain(WM_KEYUP, 0xC0000001)[0]}));
    EXPECT_EQ(Pressed(VK_DOWN), (Events{HotKey(MOD_KEYUP)[0], Plain(WM_KEYDOWN, 1, VK_DOWN)[0]}));
}

TEST_F(KeyOverrideTest, ItEndsWithTheBar)
{
    Override(VK_ESCAPE, both, both);
    DestroyWindow(bar);
    EXPECT_EQ(Pressed(), Plain(WM_KEYDOWN, 1));
    bar = Bar(owner);
    EXPECT_EQ(Pressed(), Plain(WM_KEYDOWN, 1));
}

TEST_F(KeyOverrideTest, AWindowAboveHasItsOwnBar)
{
    Override(VK_ESCAPE, both, both);
    const HWND dialog = Owner();
    SetActiveWindow(dialog);
    EXPECT_EQ(Pressed(), Plain(WM_KEYDOWN, 1));
    Bar(dialog);
    EXPECT_EQ(Pressed(), Plain(WM_KEYDOWN, 1));
    DestroyWindow(dialog);
    SetActiveWindow(owner);
    EXPECT_EQ(Pressed(), HotKey(0));
}

TEST_F(KeyOverrideTest, AReleaseWithoutItsPressIsNotToldOf)
{
    Override(VK_ESCAPE, both, both);
    EXPECT_EQ(Pressed(), HotKey(0));
    EXPECT_EQ(Released(), HotKey(MOD_KEYUP));
    EXPECT_EQ(Released(), Events{"nothing"});
}

TEST_F(KeyOverrideTest, ASoftKeyCanBeTakenOver)
{
    Override(VK_F1, both, both);
    EXPECT_EQ(Pressed(VK_F1), HotKey(0, VK_F1));
    EXPECT_EQ(Released(VK_F1), HotKey(MOD_KEYUP, VK_F1));
}

TEST_F(KeyOverrideTest, TheOwnerCanSendBackOnAsABackspace)
{
    Override(VK_ESCAPE, both, both);
    SendMessageW(edit, EM_SETSEL, 3, 3);
    PostMessageW(edit, WM_KEYDOWN, VK_ESCAPE, 1);
    MSG taken = {};
    do {
        ASSERT_GT(GetMessageW(&taken, nullptr, 0, 0), 0);
    } while (taken.message != WM_HOTKEY);
    SHSendBackToFocusWindow(taken.message, taken.wParam, taken.lParam);
    while (PeekMessageW(&taken, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE)) {
        TranslateMessage(&taken);
        DispatchMessageW(&taken);
    }
    EXPECT_EQ(GetWindowTextLengthW(edit), 2);
}
