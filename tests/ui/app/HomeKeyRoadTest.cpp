// The Smartphone's Home key: its claim, its hold, and what is performed then.
#include "tests/support/Fatal.h"
#include "tests/ui/app/KeyProgramTest.h"

class HomeKeyRoadTest : public KeyProgramTest
{
  protected:
    using Events = std::vector<std::string>;

    static constexpr UINT homeKey = 91;
    static constexpr UINT downModifiers = 8;
    static constexpr UINT upModifiers = 0x1008;
    static inline const Events captured = {"load coredll.dll", "find UnregisterFunc1", "drop 8 91",
                                           "claim window 1 4104 91", "free"};

    // Down, the timer runs off with the key still held, and up.
    void Hold(KeyProgram& app)
    {
        app.HotKey(homeKey, downModifiers);
        down = {91};
        app.Timer(6);
        down.clear();
        app.HotKey(homeKey, upModifiers);
    }
};

TEST_F(HomeKeyRoadTest, ABoundKeyIsClaimedAtTheStartAndReleasedAtTheEnd)
{
    settings.WriteCommand(4);
    settings.WriteFile(L"\\a.lnk");
    On(Platform::Smartphone, [&](KeyProgram& app) {
        EXPECT_EQ(claims.TakeCalls(), captured);
        EXPECT_EQ(app.homeKey.command, 4u);
        EXPECT_STREQ(app.homeKey.file.Buffer(), L"\\a.lnk");
        EXPECT_FALSE(app.homeHeld);
    });
    EXPECT_EQ(claims.calls, Events{"release window 1"});
}

TEST_F(HomeKeyRoadTest, AKeyThatIsNotBoundStaysTheShells)
{
    On(Platform::Smartphone, [](KeyProgram&) {});
    settings.WriteCommand(0);
    settings.WriteFile(L"\\a.lnk");
    On(Platform::Smartphone, [](KeyProgram&) {});
    settings.refused = true;
    On(Platform::Smartphone, [](KeyProgram&) {});
    EXPECT_EQ(claims.calls, Events{});
}

TEST_F(HomeKeyRoadTest, OtherDevicesReadItAndClaimNothing)
{
    settings.WriteCommand(4);
    for (const Platform device : {Platform::PocketPC, Platform::Unknown}) {
        On(device, [](KeyProgram& app) { EXPECT_EQ(app.homeKey.command, 4u); });
    }
    EXPECT_EQ(claims.calls, Events{});
}

TEST_F(HomeKeyRoadTest, ASmartphoneThatCannotGiveItIsFatal)
{
    settings.WriteCommand(4);
    claims.hasFunction = false;
    EXPECT_FATAL(On(Platform::Smartphone, [](KeyProgram&) {}), L"CApp::OnCreate", L"Can't handle key");
}

TEST_F(HomeKeyRoadTest, TheSettingsAreReadAtTheStartOnly)
{
    settings.WriteCommand(4);
    On(Platform::Smartphone, [&](KeyProgram& app) {
        settings.WriteCommand(5);
        Hold(app);
        EXPECT_EQ(app.keyPress.pressAction, 4);
    });
}

TEST_F(HomeKeyRoadTest, AKeyThatIsUnboundMeanwhileIsNotReleasedAtTheEnd)
{
    settings.WriteCommand(4);
    On(Platform::Smartphone, [&](KeyProgram& app) {
        claims.TakeCalls();
        app.homeKey.command = 0;
    });
    EXPECT_EQ(claims.calls, Events{});
}

TEST_F(HomeKeyRoadTest, DownStartsTheTimerAndUpStopsIt)
{
    settings.WriteCommand(4);
    On(Platform::Smartphone, [&](KeyProgram& app) {
        TakeEvents();
        app.HotKey(homeKey, downModifiers);
        EXPECT_EQ(TakeEvents(), Events{"timer 6 1500"});
        app.HotKey(homeKey, upModifiers);
        EXPECT_EQ(TakeEvents(), Events{"kill 6"});
        app.HotKey(homeKey, 0x1000);
        EXPECT_EQ(TakeEvents(), Events{"kill 6"});
        app.HotKey(homeKey, 0);
        EXPECT_EQ(TakeEvents(), Events{"timer 6 1500"});
    });
}

TEST_F(HomeKeyRoadTest, TheTimerMarksAKeyThatIsStillDown)
{
    settings.WriteCommand(4);
    On(Platform::Smartphone, [&](KeyProgram& app) {
        TakeEvents();
        asked.clear();
        down = {193};
        app.Timer(6);
        EXPECT_FALSE(app.homeHeld);
        EXPECT_EQ(TakeEvents(), Events{"kill 6"});
        down = {91};
        app.Timer(6);
        EXPECT_TRUE(app.homeHeld);
        EXPECT_EQ(TakeEvents(), Events{"kill 6"});
        EXPECT_EQ(asked, (std::vector<int>{91, 91}));
    });
}

TEST_F(HomeKeyRoadTest, AHeldKeyPerformsItsActionWhenItComesUp)
{
    settings.WriteCommand(2);
    settings.WriteFile(L"\\a b.lnk");
    On(Platform::Smartphone, [&](KeyProgram& app) {
        app.keyPress.holdAction = 9;
        app.keyPress.vk = 198;
        TakeEvents();
        app.HotKey(homeKey, downModifiers);
        down = {91};
        app.Timer(6);
        EXPECT_EQ(TakeEvents(), (Events{"timer 6 1500", "kill 6"})) << "not before it is up";
        app.HotKey(homeKey, upModifiers);
        EXPECT_EQ(TakeEvents(), (Events{"kill 6", "sleep 500", "action 1 0"}));
        EXPECT_FALSE(app.homeHeld);
        EXPECT_EQ(app.keyPress.pressAction, 2);
        EXPECT_STREQ(app.keyPress.pressApplication.Buffer(), L"\\a b.lnk");
        EXPECT_EQ(app.keyPress.holdAction, 9);
        EXPECT_EQ(app.keyPress.vk, 198);
        app.HotKey(homeKey, upModifiers);
        EXPECT_EQ(TakeEvents(), Events{"kill 6"}) << "once only";
    });
}

TEST_F(HomeKeyRoadTest, AHeldKeyWhoseActionWasTakenAwayDoesNothing)
{
    settings.WriteCommand(4);
    performs = true;
    On(Platform::Smartphone, [&](KeyProgram& app) {
        app.homeKey.command = 0;
        Hold(app);
        MSG message = {};
        while (PeekMessageW(&message, nullptr, 32868, 32868, PM_REMOVE)) {
            DispatchMessageW(&message);
        }
        EXPECT_EQ(app.ActiveView()->Id(), 1);
        EXPECT_EQ(app.keyPress.pressAction, 0);
    });
}

TEST_F(HomeKeyRoadTest, OnOtherDevicesAHeldKeyIsOnlyForgotten)
{
    settings.WriteCommand(4);
    for (const Platform device : {Platform::PocketPC, Platform::Unknown}) {
        On(device, [&](KeyProgram& app) {
            app.homeHeld = true;
            TakeEvents();
            app.HotKey(homeKey, upModifiers);
            EXPECT_EQ(TakeEvents(), Events{"kill 6"});
            EXPECT_FALSE(app.homeHeld);
            EXPECT_EQ(app.keyPress.pressAction, 1);
        });
    }
}

TEST_F(HomeKeyRoadTest, OtherHotKeysAreNotTheHomeKey)
{
    settings.WriteCommand(4);
    On(Platform::Smartphone, [&](KeyProgram& app) {
        TakeEvents();
        app.homeHeld = true;
        for (const UINT vk : {0u, 27u, 90u, 92u, 193u}) {
            app.HotKey(vk, downModifiers);
            app.HotKey(vk, upModifiers);
        }
        EXPECT_EQ(TakeEvents(), Events{});
        EXPECT_TRUE(app.homeHeld);
    });
}

TEST_F(HomeKeyRoadTest, WhatWasHandedOverMeanwhileIsReplaced)
{
    settings.WriteCommand(4);
    On(Platform::Smartphone, [&](KeyProgram& app) {
        app.HandOver({193, 2, 5, L"\\press.lnk", L"\\hold.lnk"});
        Hold(app);
        EXPECT_EQ(app.keyPress.pressAction, 4);
        EXPECT_STREQ(app.keyPress.pressApplication.Buffer(), L"");
        EXPECT_EQ(app.keyPress.holdAction, 5);
    });
}
