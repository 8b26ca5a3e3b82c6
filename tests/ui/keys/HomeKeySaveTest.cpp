// What confirming the Smartphone's hardware keys dialog writes, and who has the Home key afterwards.
// profiles: smartphone
#include "tests/support/Fatal.h"
#include "tests/support/ScriptedClaims.h"
#include "tests/support/ScriptedSettings.h"
#include "tests/ui/keys/KeysTest.h"

class HomeKeySaveTest : public KeysTest
{
  protected:
    using Calls = std::vector<std::string>;

    ScriptedSettings settings;
    ScriptedClaims claims;
    Calls bound; // what the confirmation did to the key
    const Calls captured = {"load coredll.dll", "find UnregisterFunc1", "drop 8 91", "claim window 1 4104 91",
                            "free"};

    HomeKeySaveTest() { menu.Add(L"Calculator.lnk", L"\\Windows\\calc.exe"); }
    // From one bound action to another.
    void Rebind(uint32_t from, const Step& choose, UINT answer = IDOK)
    {
        homeKey.command = from;
        homeKey.file = L"\\Menu\\Old.lnk";
        const int result = OpenHomeKey([&](Opened& opened) {
            claims.expectedWindow = opened.app.MainWindow();
            claims.calls.clear();
            choose(opened);
            Run(opened, answer);
            bound = claims.TakeCalls();
        });
        EXPECT_EQ(result, answer == IDCANCEL ? IDCANCEL : IDOK);
    }
    void Rebind(uint32_t from, int to)
    {
        Rebind(from, [=](Opened& opened) { Choose(opened, homeList, to); });
    }
};

TEST_F(HomeKeySaveTest, AConfirmationIsWrittenAndTakenOver)
{
    Rebind(4, 8);
    EXPECT_EQ(homeKey.command, 8u);
    EXPECT_EQ(settings.Command(), 8);
    EXPECT_EQ(settings.File(), L"\\Menu\\Old.lnk");
    Rebind(
        4, [](Opened& opened) { Choose(opened, homeList, 6); }, 6);
    EXPECT_EQ(settings.Command(), 6);
    SHomeKey read;
    read.Load();
    EXPECT_EQ(read.command, 6u) << "the same settings";
}

TEST_F(HomeKeySaveTest, AnApplicationIsWrittenByItsShortcut)
{
    Rebind(4, [](Opened& opened) {
        ChooseApplication(opened, homeList, [](Opened& picker) { Run(picker, IDOK); });
    });
    EXPECT_EQ(homeKey.command, 2u);
    EXPECT_STREQ(homeKey.file, L"\\Menu\\Calculator.lnk");
    EXPECT_EQ(settings.Command(), 2);
    EXPECT_EQ(settings.File(), L"\\Menu\\Calculator.lnk");
}

TEST_F(HomeKeySaveTest, ARefusedCommandIsSavedAllTheSame)
{
    for (const int action : {7, 9}) {
        Rebind(4, action);
        EXPECT_EQ(settings.Command(), action);
        EXPECT_EQ(homeKey.command, static_cast<uint32_t>(action));
    }
}

TEST_F(HomeKeySaveTest, CancellingWritesNothing)
{
    Rebind(
        0, [](Opened& opened) { Choose(opened, homeList, 8); }, IDCANCEL);
    EXPECT_EQ(settings.Command(), -1);
    EXPECT_EQ(homeKey.command, 0u);
    EXPECT_EQ(bound, Calls());
}

TEST_F(HomeKeySaveTest, ACancelledPickerUnbindsTheKey)
{
    Rebind(4, [](Opened& opened) {
        ChooseApplication(opened, homeList, [](Opened& picker) { Run(picker, IDCANCEL); });
    });
    EXPECT_EQ(settings.Command(), 0);
    EXPECT_EQ(bound, Calls{"release window 1"});
}

TEST_F(HomeKeySaveTest, TheFirstBindingCapturesTheKey)
{
    Rebind(0, 3);
    EXPECT_EQ(bound, captured);
    EXPECT_EQ(homeKey.command, 3u);
}

// Which leaves the key with nothing to do; that is accepted.
TEST_F(HomeKeySaveTest, ConfirmingThatNothingIsBoundCapturesTheKeyToo)
{
    Rebind(0, [](Opened&) {});
    EXPECT_EQ(bound, captured);
    EXPECT_EQ(settings.Command(), 0);
}

TEST_F(HomeKeySaveTest, AnotherBindingLeavesTheKeyCaptured)
{
    Rebind(3, 8);
    EXPECT_EQ(bound, Calls());
}

TEST_F(HomeKeySaveTest, UnbindingReleasesTheKey)
{
    Rebind(3, 0);
    EXPECT_EQ(bound, Calls{"release window 1"});
    EXPECT_EQ(homeKey.command, 0u);
}

TEST_F(HomeKeySaveTest, WhatCannotBeSavedIsToldAndNotLost)
{
    Rebind(0, [&](Opened& opened) {
        Choose(opened, homeList, 8);
        settings.refused = true;
        Run(opened, IDOK);
        EXPECT_EQ(Notice(opened.app), L"Registry error: Can't open key");
        EXPECT_TRUE(IsWindow(opened.dialog));
        EXPECT_EQ(homeKey.command, 0u);
        EXPECT_EQ(claims.calls, Calls());
        settings.refused = false;
    });
    EXPECT_EQ(settings.Command(), 8);
}

TEST_F(HomeKeySaveTest, ADialogThatCannotSaveIsClosedByCancellingOnly)
{
    EXPECT_EQ(OpenHomeKey([&](Opened& opened) {
                  Choose(opened, homeList, 8);
                  settings.refused = true;
                  Run(opened, IDOK);
              }),
              IDCANCEL);
    EXPECT_EQ(homeKey.command, 0u);
}

TEST_F(HomeKeySaveTest, AShellThatKeepsItsKeyIsFatal)
{
    const auto bind = [&] {
        claims.hasFunction = false;
        Rebind(0, 3);
    };
    EXPECT_FATAL(bind(), L"CDialogKeys_SP::HandleCommand", L"Can't handle key");
}

// Through the program's command: what it has bound is what its dialog shows.
TEST_F(HomeKeySaveTest, TheCommandBindsTheProgramsOwnKey)
{
    settings.WriteCommand(4);
    InProgram([&](ProgramApp& app) {
        int shown = 0;
        for (const auto& [before, item] : {std::pair{L"Process viewer", 8}, std::pair{L"Close all", 0}}) {
            app.Later([&, expected = before, chosen = item] {
                Opened opened = {app, app.dialogs->At(0)->Window()};
                shown++;
                EXPECT_EQ(Shown(opened, homeList), expected);
                Choose(opened, homeList, chosen);
                Run(opened, IDOK);
            });
            SendMessageW(app.MainWindow(), WM_COMMAND, 32814, 0);
            EXPECT_EQ(app.homeKey.command, static_cast<uint32_t>(item));
        }
        EXPECT_EQ(shown, 2);
    });
    EXPECT_EQ(settings.Command(), 0);
}
