// What a program is told of keys, and which of the keys that it presses stay inside the handheld.
#include "platform/ce.h"
#include "platform/pc/common/ControlWindow.h"
#include "tests/support/ImportHook.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

static std::vector<std::string> done;
static SHORT pcState = 0;

static void WINAPI NoteKey(BYTE key, BYTE scan, DWORD flags, ULONG_PTR)
{
    done.push_back("key " + std::to_string(key) + " " + std::to_string(scan) + " " + std::to_string(flags));
}

static BOOL WINAPI NoteMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam)
{
    done.push_back("message " + std::to_string(message - WM_APP) + " " + std::to_string(wParam) + " " +
                   std::to_string(lParam));
    return TRUE;
}

static SHORT WINAPI PcState(int)
{
    return pcState;
}

class ButtonStateTest : public testing::Test
{
  protected:
    const HMODULE coredll = GetModuleHandleW(L"coredll.dll");
    const HWND control = handheld::FindControl(); // of the session's handheld
    using Texts = std::vector<std::string>;

    void SetUp() override
    {
        ASSERT_TRUE(control);
        done.clear();
    }
};

TEST_F(ButtonStateTest, AHeldButtonIsDownForEveryProgram)
{
    static constexpr int key = 0xE8; // no keyboard and no handheld has it
    EXPECT_EQ(GetAsyncKeyState(key), 0);
    handheld::SetButtonHeld(control, key, true);
    EXPECT_EQ(GetAsyncKeyState(key), static_cast<SHORT>(0x8000));
    EXPECT_EQ(GetAsyncKeyState(key), static_cast<SHORT>(0x8000));
    EXPECT_EQ(GetAsyncKeyState(key - 1), 0);
    handheld::SetButtonHeld(control, key, false);
    EXPECT_EQ(GetAsyncKeyState(key), 0);
}

TEST_F(ButtonStateTest, OfThePcsKeysOnlyTheDownBitIsTold)
{
    const ImportHook hook(coredll, "GetAsyncKeyState", PcState);
    pcState = static_cast<SHORT>(0x8001);
    EXPECT_EQ(GetAsyncKeyState('A'), static_cast<SHORT>(0x8000));
    pcState = 1;
    EXPECT_EQ(GetAsyncKeyState('A'), 0);
}

TEST_F(ButtonStateTest, TheLockKeysStayInsideTheHandheld)
{
    const ImportHook keys(coredll, "keybd_event", NoteKey);
    const ImportHook messages(coredll, "PostMessageW", NoteMessage);
    keybd_event(0x85, 0, 1, 0);
    EXPECT_EQ(done, Texts{"message 1 0 0"});
    keybd_event(0x85, 0, 2, 0);
    keybd_event(0xC6, 0, 1, 0);
    keybd_event(0xC6, 0, 2, 0);
    EXPECT_EQ(done, Texts{"message 1 0 0"});
}

TEST_F(ButtonStateTest, OtherKeysArePressedOnThePc)
{
    const ImportHook keys(coredll, "keybd_event", NoteKey);
    keybd_event('A', 3, 0, 0);
    keybd_event('A', 3, 2, 0);
    EXPECT_EQ(done, (Texts{"key 65 3 0", "key 65 3 2"}));
}

TEST_F(ButtonStateTest, AFunctionIsFoundByItsWideNameAndByItsNumber)
{
    EXPECT_TRUE(GetProcAddressW(coredll, L"UnregisterFunc1"));
    EXPECT_FALSE(GetProcAddressW(coredll, L"UnregisterFunc2"));
    EXPECT_FALSE(GetProcAddressW(coredll, L"\x1155nregisterFunc1")) << "only its low half is a U";
    EXPECT_TRUE(GetProcAddressW(coredll, MAKEINTRESOURCEW(1)));
    EXPECT_FALSE(GetProcAddressW(coredll, MAKEINTRESOURCEW(9999)));
}
