// From a hardware button to its action: the start by a button, the hand-over, and press against hold.
#include "tests/ui/app/KeyProgramTest.h"

class ButtonRoadTest : public KeyProgramTest
{
  protected:
    using Events = std::vector<std::string>;

    static constexpr SKeyCommand button = {193, 3, 4, L"\\press.lnk", L"\\hold.lnk"};
};

TEST_F(ButtonRoadTest, AButtonThatIsUpAgainIsPressed)
{
    On(Platform::PocketPC, [&](KeyProgram& app) {
        asked.clear();
        EXPECT_EQ(app.HandOver(button), TRUE);
        EXPECT_EQ(TakeEvents(), Events{"action 1 0"});
        EXPECT_EQ(asked, std::vector<int>{193});
        EXPECT_EQ(app.keyPress.vk, 193);
        EXPECT_EQ(app.keyPress.pressAction, 3);
        EXPECT_EQ(app.keyPress.holdAction, 4);
        EXPECT_STREQ(app.keyPress.pressApplication.Buffer(), L"\\press.lnk");
        EXPECT_STREQ(app.keyPress.holdApplication.Buffer(), L"\\hold.lnk");
        EXPECT_EQ(app.ActiveView()->Id(), 1);
    });
}

TEST_F(ButtonRoadTest, AButtonThatIsStillDownIsWatched)
{
    On(Platform::PocketPC, [&](KeyProgram& app) {
        down = {193};
        EXPECT_EQ(app.HandOver(button), TRUE);
        EXPECT_EQ(TakeEvents(), Events{"timer 5 600"});
        app.Timer(5);
        EXPECT_EQ(TakeEvents(), (Events{"action 2 0", "kill 5"}));
        app.HandOver(button);
        TakeEvents();
        down.clear();
        app.Timer(5);
        EXPECT_EQ(TakeEvents(), (Events{"action 1 0", "kill 5"}));
    });
}

TEST_F(ButtonRoadTest, OnlyTheButtonsOwnKeyCounts)
{
    On(Platform::PocketPC, [&](KeyProgram& app) {
        down = {194, 91};
        app.HandOver(button);
        EXPECT_EQ(TakeEvents(), Events{"action 1 0"});
        down = {193};
        app.HandOver(button);
        down = {194, 91};
        app.Timer(5);
        EXPECT_EQ(TakeEvents(), (Events{"timer 5 600", "action 1 0", "kill 5"}));
    });
}

TEST_F(ButtonRoadTest, AHandOverDoesTheSameOnEveryDevice)
{
    for (const Platform device : {Platform::Smartphone, Platform::Unknown}) {
        On(device, [&](KeyProgram& app) {
            app.HandOver(button);
            EXPECT_EQ(TakeEvents(), Events{"action 1 0"});
            down = {193};
            app.HandOver(button);
            EXPECT_EQ(TakeEvents(), Events{"timer 5 600"});
            down.clear();
        });
    }
}

// A running timer is not stopped by the next button, whose action is performed twice then.
TEST_F(ButtonRoadTest, AHandOverWhileTheTimerRunsLeavesTheTimer)
{
    On(Platform::PocketPC, [&](KeyProgram& app) {
        down = {193};
        app.HandOver(button);
        app.HandOver({198, 5, 6, L"", L""});
        EXPECT_EQ(TakeEvents(), (Events{"timer 5 600", "action 1 0"}));
        app.Timer(5);
        EXPECT_EQ(TakeEvents(), (Events{"action 1 0", "kill 5"}));
        EXPECT_EQ(app.keyPress.pressAction, 5);
        down = {193, 198};
        app.HandOver(button);
        app.HandOver({198, 5, 6, L"", L""});
        EXPECT_EQ(TakeEvents(), (Events{"timer 5 600", "timer 5 600"}));
        app.Timer(5);
        EXPECT_EQ(TakeEvents(), (Events{"action 2 0", "kill 5"}));
        EXPECT_EQ(app.keyPress.holdAction, 6);
    });
}

TEST_F(ButtonRoadTest, MalformedRecordsAreNoPress)
{
    On(Platform::PocketPC, [&](KeyProgram& app) {
        const auto send = [&](ULONG_PTR kind, DWORD size, const void* data) {
            COPYDATASTRUCT copy = {kind, size, const_cast<void*>(data)};
            return SendMessageW(app.MainWindow(), WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&copy));
        };
        const std::vector<unsigned char> large(5000, 1);
        EXPECT_EQ(send(0, sizeof button, &button), TRUE);
        EXPECT_EQ(send(2, sizeof button, &button), TRUE);
        EXPECT_EQ(send(1, sizeof button - 1, &button), TRUE);
        EXPECT_EQ(send(1, sizeof button + 1, large.data()), TRUE);
        EXPECT_EQ(send(1, 0, nullptr), TRUE);
        EXPECT_EQ(app.WindowProc(WM_COPYDATA, 0, 0), TRUE);
        EXPECT_EQ(TakeEvents(), Events{});
        EXPECT_EQ(app.keyPress.vk, 0);
    });
}

TEST_F(ButtonRoadTest, ARecordWithoutTerminatorsIsCut)
{
    On(Platform::PocketPC, [&](KeyProgram& app) {
        SKeyCommand full = button;
        std::fill(std::begin(full.pressApplication), std::end(full.pressApplication), L'p');
        std::fill(std::begin(full.holdApplication), std::end(full.holdApplication), L'h');
        EXPECT_EQ(app.HandOver(full), TRUE);
        EXPECT_EQ(std::wstring(app.keyPress.pressApplication), std::wstring(255, L'p'));
        EXPECT_EQ(std::wstring(app.keyPress.holdApplication), std::wstring(255, L'h'));
        EXPECT_EQ(TakeEvents(), Events{"action 1 0"});
    });
}

TEST_F(ButtonRoadTest, APocketPCStartedByAButtonPerformsIt)
{
    On(
        Platform::PocketPC, [&](KeyProgram&) { EXPECT_EQ(TakeEvents(), Events{"action 1 0"}); }, L"193 3*9");
    down = {193};
    On(
        Platform::PocketPC, [&](KeyProgram&) { EXPECT_EQ(TakeEvents(), Events{"timer 5 600"}); }, L"193 3*9");
    EXPECT_EQ(asked, (std::vector<int>{193, 193}));
}

TEST_F(ButtonRoadTest, AnotherDeviceStartedByAButtonDoesNothing)
{
    for (const Platform device : {Platform::Smartphone, Platform::Unknown}) {
        On(
            device,
            [&](KeyProgram& app) {
                EXPECT_EQ(TakeEvents(), Events{});
                EXPECT_EQ(app.keyPress.vk, 193);
            },
            L"193 3*9");
    }
    EXPECT_TRUE(asked.empty());
}

TEST_F(ButtonRoadTest, ANormalStartPerformsNothing)
{
    for (const wchar_t* line : {L"", L"193 3", L"0 3*9", L"x 3*9"}) {
        On(
            Platform::PocketPC, [&](KeyProgram&) { EXPECT_EQ(TakeEvents(), Events{}); }, line);
    }
    EXPECT_TRUE(asked.empty());
}

TEST_F(ButtonRoadTest, ThePostedActionIsPerformed)
{
    performs = true;
    On(Platform::PocketPC, [&](KeyProgram& app) {
        app.HandOver(button);
        EXPECT_TRUE(PumpUntil([&] { return app.ActiveView()->Id() == 1; }));
        app.HandOver({193, 4, 5, L"", L""});
        EXPECT_TRUE(PumpUntil([&] { return app.ActiveView()->Id() == 4; }));
        down = {193};
        app.HandOver({193, 4, 5, L"", L""});
        app.Timer(5);
        EXPECT_TRUE(PumpUntil([&] { return app.ActiveView()->Id() == 2; }));
    });
}

TEST_F(ButtonRoadTest, AnActionUnderADialogEndsItAndShowsThePage)
{
    AddTask(L"Task");
    performs = true;
    bool returned = false;
    On(Platform::PocketPC, [&](KeyProgram& app) {
        app.Later([&] {
            ASSERT_EQ(app.dialogs->Count(), 1u);
            app.HandOver({193, 4, 5, L"", L""});
        });
        SendMessageW(app.MainWindow(), WM_COMMAND, CMD_WINDOWS_LIST, 0);
        returned = true;
        EXPECT_EQ(app.dialogs->Count(), 0u);
        EXPECT_EQ(app.ActiveView()->Id(), 4);
        EXPECT_TRUE(IsWindowEnabled(app.MainWindow()));
    });
    EXPECT_TRUE(returned);
}
