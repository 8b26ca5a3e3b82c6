// SHSendBackToFocusWindow: the Back key takes a character away.
#include "tests/ui/UiTest.h"

class BackspaceTest : public UiTest
{
  protected:
    HWND edit = CreateWindowExW(0, L"EDIT", L"abc", WS_POPUP | WS_VISIBLE, 10, 60, 100, 20, nullptr, nullptr,
                                nullptr, nullptr);

    BackspaceTest()
    {
        SetFocus(edit);
        SendMessageW(edit, EM_SETSEL, 3, 3);
    }
    ~BackspaceTest() override { DestroyWindow(edit); }

    // What the focused window is sent for it.
    static Events Sent(UINT message, WORD modifiers, WORD key)
    {
        SHSendBackToFocusWindow(message, 0, MAKELPARAM(modifiers, key));
        Events sent;
        MSG posted = {};
        while (PeekMessageW(&posted, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE)) {
            sent.push_back(Numbers(posted.message, posted.wParam, posted.lParam));
            TranslateMessage(&posted);
            DispatchMessageW(&posted);
        }
        return sent;
    }

    std::wstring Text() const
    {
        wchar_t text[16] = {};
        GetWindowTextW(edit, text, 16);
        return text;
    }
};

TEST_F(BackspaceTest, ItsPressIsAKeyThatErasesOneCharacter)
{
    ASSERT_EQ(GetFocus(), edit);
    EXPECT_EQ(Sent(WM_HOTKEY, 0, VK_ESCAPE),
              (Events{Numbers(WM_KEYDOWN, VK_BACK, 1), Numbers(WM_CHAR, L'\b', 1)}));
    EXPECT_EQ(Text(), L"ab");
}

TEST_F(BackspaceTest, ItsReleaseIsAKeyAlone)
{
    ASSERT_EQ(GetFocus(), edit);
    EXPECT_EQ(Sent(WM_HOTKEY, MOD_KEYUP, VK_ESCAPE), Events{Numbers(WM_KEYUP, VK_BACK, 0xC0000001)});
    EXPECT_EQ(Text(), L"abc");
}

TEST_F(BackspaceTest, AnythingElseIsIgnored)
{
    EXPECT_EQ(Sent(WM_HOTKEY, 0, VK_F1), Events{});
    EXPECT_EQ(Sent(WM_KEYDOWN, 0, VK_ESCAPE), Events{});
}
