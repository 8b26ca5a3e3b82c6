// The hardware buttons, pressed and held, and what they start.
// profiles: pocketpc smartphone
// device's executable: never
#include "rig/Actor.h"
#include "tests/e2e/HandheldKeys.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

class HardwareButtonTest : public testing::Test
{
  protected:
    const HandheldKeys keys;
    const ButtonNote note;
    const Actor actor;
    HWND front = nullptr;

    void SetUp() override
    {
        front = actor.Make({.title = L"In front"});
        ASSERT_TRUE(Raise(front));
    }

    // The program that a button starts comes to the front; it is closed again.
    void ExpectStarts(WORD pcKey, const std::wstring& className) const
    {
        ASSERT_FALSE(FindTopWindow({.className = className}));
        PressKey(pcKey);
        const HWND window = WaitForTopWindow({.className = className});
        ASSERT_TRUE(window) << pcKey;
        EXPECT_TRUE(WaitFor([=] { return GetForegroundWindow() == window; })) << pcKey;
        PostMessageW(window, WM_CLOSE, 0, 0);
        EXPECT_TRUE(WaitFor([=] { return !IsWindow(window); })) << pcKey;
    }
};

TEST_F(HardwareButtonTest, EveryButtonStartsWhatTheHandheldBeganWith)
{
    ExpectStarts(VK_F5, L"Notepad");
    ExpectStarts(VK_F6, L"WineMine");
    ExpectStarts(VK_F7, L"RegEdit_RegEdit");
    ExpectStarts(VK_F8, L"CLClass");
}

TEST_F(HardwareButtonTest, TheProgramInFrontDoesNotSeeIt)
{
    const ButtonDefault button(firstButton);
    button.Set(note.Command(L"193 3*9"));
    const int count = KeyCount(front);
    PressKey(VK_F5);
    EXPECT_TRUE(note.Becomes("193 3*9;"));
    ASSERT_TRUE(Raise(front));
    PressKey('K');
    EXPECT_TRUE(WaitFor([=, this] { return KeyCount(front) > count; }));
    EXPECT_EQ(KeyCount(front), count + 1) << "the other one was the button";
}

TEST_F(HardwareButtonTest, AHeldButtonIsPressedOnceAndIsDown)
{
    const ButtonDefault button(firstButton + 1);
    button.Set(note.Command(L"once"));
    EXPECT_FALSE(keys.IsDown(firstButton + 1));
    for (int i = 0; i < 4; i++) {
        KeyDown(VK_F6);
    }
    EXPECT_TRUE(note.Becomes("once;"));
    EXPECT_TRUE(keys.IsDown(firstButton + 1));
    EXPECT_FALSE(keys.IsDown(firstButton));
    KeyUp(VK_F6);
    EXPECT_FALSE(keys.IsDown(firstButton + 1));
    PressKey(VK_F6);
    EXPECT_TRUE(note.Becomes("once;once;")) << "not for a repeat, but for the next press";
}

TEST_F(HardwareButtonTest, AButtonIsDownAndUpAtOnce)
{
    const ButtonDefault button(firstButton);
    button.Set(note.Command(L"x"));
    for (const char* lines : {"x;", "x;x;", "x;x;x;"}) {
        KeyDown(VK_F5);
        EXPECT_TRUE(keys.IsDown(firstButton)) << lines;
        KeyUp(VK_F5);
        EXPECT_FALSE(keys.IsDown(firstButton)) << lines;
        EXPECT_TRUE(note.Becomes(lines));
    }
}

TEST_F(HardwareButtonTest, ARegistryInDisorderStartsNothingAndBreaksNothing)
{
    const ButtonDefault first(firstButton);
    const ButtonDefault second(firstButton + 1);
    second.Set(note.Command(L"alive"));
    const std::wstring longText(16000, L'"');
    const auto pressBoth = [&](const std::string& expected) {
        PressKey(VK_F5);
        PressKey(VK_F6);
        EXPECT_TRUE(note.Becomes(expected));
    };
    first.Remove();
    pressBoth("alive;");
    first.Set(L"");
    pressBoth("alive;alive;");
    first.Set(L"\"C:\\no such program.exe\" 193 3*9");
    pressBoth("alive;alive;alive;");
    first.Set(REG_BINARY, L"notepad.exe", 24);
    pressBoth("alive;alive;alive;alive;");
    first.Set(REG_SZ, L"xyz", 5);
    pressBoth("alive;alive;alive;alive;alive;");
    first.Set(longText);
    pressBoth("alive;alive;alive;alive;alive;alive;");
    EXPECT_FALSE(FindTopWindow({.className = L"Notepad"}));
}
