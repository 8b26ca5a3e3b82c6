// The Home and End keys of a Smartphone.
// profiles: smartphone
// device's executable: never
#include "rig/Actor.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "tests/e2e/platform/ClaimSession.h"

using namespace rig;

class HomeKeyClaimTest : public ClaimSession
{};

TEST_F(HomeKeyClaimTest, TheHomeKeyGoesHomeUntilItIsClaimed)
{
    const HWND today = FindTopWindow({.className = L"DesktopExplorerWindow"});
    const Actor actor;
    const HWND front = actor.Make({.title = L"In front"});
    for (WORD key : {VK_HOME, VK_END}) {
        ASSERT_TRUE(Raise(front));
        ExtendedKeyDown(key);
        ExtendedKeyUp(key);
        EXPECT_TRUE(WaitFor([=] { return GetForegroundWindow() == today; })) << key;
    }
    ASSERT_TRUE(Raise(front));
    ASSERT_TRUE(keys.Claim(own, 1, homeKey, MOD_WIN | keyUpToo));
    ExtendedKeyDown(VK_HOME);
    EXPECT_EQ(TakeTold(1), (std::vector<Told>{{1, 8, 0x5B}}));
    EXPECT_TRUE(keys.IsDown(homeKey));
    ExtendedKeyUp(VK_HOME);
    EXPECT_EQ(TakeTold(1), (std::vector<Told>{{1, 0x1008, 0x5B}}));
    EXPECT_FALSE(keys.IsDown(homeKey));
    EXPECT_EQ(GetForegroundWindow(), front);
    EXPECT_TRUE(keys.Release(own, 1));
}
