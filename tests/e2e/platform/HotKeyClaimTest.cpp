// Keys of the handheld that a program claims.
// profiles: pocketpc smartphone
// device's executable: never
#include "rig/Actor.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "tests/e2e/platform/ClaimSession.h"

using namespace rig;

class HotKeyClaimTest : public ClaimSession
{
  protected:
    static bool StartsNotepad()
    {
        PressKey(VK_F5);
        const HWND notepad = WaitForTopWindow({.className = L"Notepad"});
        PostMessageW(notepad, WM_CLOSE, 0, 0);
        return notepad && WaitFor([=] { return !IsWindow(notepad); });
    }
};

TEST_F(HotKeyClaimTest, AClaimedButtonGoesToItsClaimantWithoutRepeats)
{
    ASSERT_TRUE(keys.Claim(own, 5, firstButton, MOD_WIN | keyUpToo));
    for (int i = 0; i < 3; i++) {
        KeyDown(VK_F5);
    }
    EXPECT_TRUE(keys.IsDown(firstButton));
    KeyUp(VK_F5);
    PressKey(VK_F5);
    EXPECT_EQ(TakeTold(4),
              (std::vector<Told>{{5, 8, 0xC1}, {5, 0x1008, 0xC1}, {5, 8, 0xC1}, {5, 0x1008, 0xC1}}));
    EXPECT_FALSE(FindTopWindow({.className = L"Notepad"}));
    EXPECT_TRUE(keys.Release(own, 5));
    EXPECT_FALSE(keys.Release(own, 5));
    EXPECT_TRUE(StartsNotepad());
}

TEST_F(HotKeyClaimTest, WithoutTheWishForReleasesThereAreNone)
{
    ASSERT_TRUE(keys.Claim(own, 1, firstButton));
    ASSERT_TRUE(keys.Claim(own, 2, firstButton + 1));
    PressKey(VK_F5);
    PressKey(VK_F6);
    EXPECT_EQ(TakeTold(2), (std::vector<Told>{{1, 8, 0xC1}, {2, 8, 0xC2}}));
    EXPECT_TRUE(keys.Release(own, 1));
    EXPECT_TRUE(keys.Release(own, 2));
}

TEST_F(HotKeyClaimTest, AClaimantThatEndsLeavesTheButtonToTheShell)
{
    Actor actor;
    ASSERT_TRUE(keys.Claim(actor.Make({}), 1, firstButton));
    actor.Kill();
    ASSERT_TRUE(WaitFor([&] { return !actor.Running(); }));
    EXPECT_TRUE(StartsNotepad());
    ASSERT_TRUE(keys.Claim(own, 1, firstButton));
    PressKey(VK_F5);
    EXPECT_EQ(TakeTold(1), (std::vector<Told>{{1, 8, 0xC1}}));
    EXPECT_TRUE(keys.Release(own, 1));
}

TEST_F(HotKeyClaimTest, AClaimWithoutAWindowIsTheShells)
{
    ASSERT_TRUE(keys.Claim(nullptr, firstButton, firstButton));
    EXPECT_TRUE(StartsNotepad());
}

TEST_F(HotKeyClaimTest, AHungClaimantHoldsNothingUp)
{
    const Actor hung;
    const HWND window = hung.Make({.closing = actor::Closing::Delay, .delay = 600000});
    ASSERT_TRUE(keys.Claim(window, 1, firstButton + 1));
    PostMessageW(window, WM_CLOSE, 0, 0);
    const Actor actor;
    ASSERT_TRUE(Raise(actor.Make({.title = L"In front"})));
    const ButtonNote note;
    const ButtonDefault button(firstButton);
    button.Set(note.Command(L"alive"));
    PressKey(VK_F6);
    PressKey(VK_F5);
    EXPECT_TRUE(note.Becomes("alive;"));
    EXPECT_TRUE(keys.Release(window, 1));
}
