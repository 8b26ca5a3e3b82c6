// Who has claimed which key of the handheld, and who is told of it.
#include "platform/pc/common/HotKeyTable.h"

#include "platform/ce.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using handheld::HotKeyTable;
using handheld::KeyRequest;
using Kind = KeyRequest::Kind;

static constexpr UINT button = 0xC1;
static constexpr UINT other = 0xC2;
static constexpr UINT home = 0x5B;

class HotKeyTableTest : public testing::Test
{
  protected:
    HotKeyTable table{{home, button, other}};
    HWND one = Window();
    HWND two = Window();

    ~HotKeyTableTest() override
    {
        DestroyWindow(one);
        DestroyWindow(two);
    }

    static HWND Window()
    {
        return CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    }

    DWORD Ask(Kind kind, HWND window, int id, UINT modifiers, UINT key)
    {
        return table.Answer(
            {kind, static_cast<DWORD>(reinterpret_cast<ULONG_PTR>(window)), id, modifiers, key});
    }
    DWORD Claim(HWND window, int id, UINT key, UINT modifiers = MOD_WIN)
    {
        return Ask(Kind::Claim, window, id, modifiers, key);
    }
    DWORD Release(HWND window, int id) { return Ask(Kind::Release, window, id, 0, 0); }
    DWORD Drop(UINT key, UINT modifiers = MOD_WIN) { return Ask(Kind::Drop, nullptr, 0, modifiers, key); }
    // Takes the key from the shell first.
    void Take(HWND window, int id, UINT key, UINT modifiers = MOD_WIN)
    {
        EXPECT_EQ(Drop(key), 0u);
        EXPECT_EQ(Claim(window, id, key, modifiers), 0u);
    }

    // The hot keys that a window was told of: id, low and high word.
    static std::vector<std::string> Told(HWND window)
    {
        std::vector<std::string> told;
        MSG message;
        while (PeekMessageW(&message, window, WM_HOTKEY, WM_HOTKEY, PM_REMOVE)) {
            char text[40];
            snprintf(text, sizeof text, "%d: %x %x", static_cast<int>(message.wParam), LOWORD(message.lParam),
                     HIWORD(message.lParam));
            told.emplace_back(text);
        }
        return told;
    }
    using Texts = std::vector<std::string>;
};

TEST_F(HotKeyTableTest, AKeyIsTheShellsUntilItIsTaken)
{
    EXPECT_FALSE(table.Press(button));
    EXPECT_EQ(Claim(one, 1, button), 1409u); // the hot key is already registered
    EXPECT_EQ(Drop(button), 0u);
    EXPECT_FALSE(table.Press(button)) << "nobody else has it";
    EXPECT_EQ(Claim(one, 1, button), 0u);
    EXPECT_TRUE(table.Press(button));
    EXPECT_FALSE(table.Press(other));
}

TEST_F(HotKeyTableTest, TheClaimantIsToldOfThePressAlone)
{
    Take(one, 7, button);
    table.Press(button);
    table.Release(button);
    EXPECT_EQ(Told(one), Texts{"7: 8 c1"});
    EXPECT_EQ(Told(two), Texts{});
}

TEST_F(HotKeyTableTest, TheClaimantOfReleasesIsToldOfThemToo)
{
    Take(one, 1, home, MOD_WIN | MOD_KEYUP);
    table.Press(home);
    table.Release(home);
    EXPECT_EQ(Told(one), (Texts{"1: 8 5b", "1: 1008 5b"}));
}

TEST_F(HotKeyTableTest, OneKeyHasOneClaimant)
{
    Take(one, 1, button);
    EXPECT_EQ(Claim(two, 1, button), 1409u);
    EXPECT_EQ(Claim(one, 2, button, MOD_WIN | MOD_KEYUP), 1409u);
    EXPECT_EQ(Claim(two, 1, button, MOD_CONTROL), 0u) << "another combination";
    table.Press(button);
    EXPECT_EQ(Told(one), Texts{"1: 8 c1"});
    EXPECT_EQ(Told(two), Texts{});
}

TEST_F(HotKeyTableTest, AReleasedKeyIsTheShellsAgain)
{
    Take(one, 1, button);
    EXPECT_EQ(Release(two, 1), 1419u); // the hot key is not registered
    EXPECT_EQ(Release(one, 2), 1419u);
    EXPECT_EQ(Release(one, 1), 0u);
    EXPECT_FALSE(table.Press(button));
    EXPECT_EQ(Claim(two, 1, button), 1409u);
    EXPECT_EQ(Release(one, 1), 1419u);
}

TEST_F(HotKeyTableTest, ADeadClaimantsKeyIsTheShellsAgain)
{
    Take(one, 1, button);
    DestroyWindow(one);
    EXPECT_FALSE(table.Press(button));
    EXPECT_EQ(Claim(two, 1, button), 1409u);
    Take(two, 1, button);
    EXPECT_TRUE(table.Press(button));
}

TEST_F(HotKeyTableTest, AnyClaimCanBeDropped)
{
    Take(one, 1, button);
    EXPECT_EQ(Drop(button), 0u);
    EXPECT_EQ(Drop(button), 1419u);
    EXPECT_FALSE(table.Press(button));
    EXPECT_EQ(Claim(two, 1, button), 0u);
    EXPECT_EQ(Drop(button, MOD_WIN | MOD_KEYUP), 0u) << "the same key";
}

TEST_F(HotKeyTableTest, AClaimWithoutAWindowGivesTheKeyToTheShell)
{
    Take(one, 1, button);
    EXPECT_EQ(Drop(button), 0u);
    EXPECT_EQ(Claim(nullptr, button, button), 0u);
    EXPECT_FALSE(table.Press(button));
    EXPECT_EQ(Told(one), Texts{});
    EXPECT_EQ(Claim(nullptr, button, button), 1409u);
}

TEST_F(HotKeyTableTest, AKeyTakenWhileItIsHeldIsNotReleasedForItsNewClaimant)
{
    table.Press(button);
    Take(one, 1, button, MOD_WIN | MOD_KEYUP);
    table.Release(button);
    EXPECT_EQ(Told(one), Texts{});
    table.Press(button);
    EXPECT_EQ(Drop(button), 0u);
    EXPECT_EQ(Claim(two, 1, button, MOD_WIN | MOD_KEYUP), 0u);
    table.Release(button);
    EXPECT_EQ(Told(two), Texts{});
    EXPECT_EQ(Told(one), Texts{"1: 8 c1"});
}

TEST_F(HotKeyTableTest, OnlyAWindowThatIsThereCanClaim)
{
    DestroyWindow(two);
    EXPECT_EQ(Drop(button), 0u);
    EXPECT_EQ(Claim(two, 1, button), 1400u); // invalid window handle
    EXPECT_EQ(Ask(static_cast<Kind>(9), one, 1, MOD_WIN, button), 87u);
    EXPECT_FALSE(table.Press(button));
}
