// A device that refuses what the page of processes asks of it, by a profile of the suite's own.
#include "tests/e2e/ProcsScreen.h"
#include "tests/e2e/ScreenText.h"
#include "tests/support/OwnProfile.h"

#include "rig/Controls.h"
#include "rig/WaitFor.h"

using namespace rig;

class ProcsRefusedTest : public ProcsScreen
{
  protected:
    // The program takes it over from this process.
    static void SetUpTestSuite()
    {
        UseOwnProfile("[handheld]\ntier = 1\n"
                      "[process]\n"
                      "closed.exe = refuse-open\n"
                      "stubborn.exe = refuse-end\n"
                      "secret.exe = no-module-snapshot\n"
                      "bare.exe = no-modules\n"
                      "homeless.exe = no-module-paths\n"
                      "[heap]\n"
                      "actor.exe = 1536, 512 | 1024\n"
                      "stubborn.exe = 1000 | 300\n");
    }
    static void TearDownTestSuite()
    {
        SetEnvironmentVariableW(L"HANDHELD_PROFILE", nullptr);
        PageScreen::TearDownTestSuite();
    }

    static void ExpectNotice(const std::wstring& text)
    {
        const HWND notice = WaitForNotice();
        ASSERT_TRUE(notice);
        EXPECT_TRUE(NoticeSays(Main(), notice, text));
    }

    std::wstring ReportOn(const Actor& actor) const
    {
        SelectProcess(actor.Process());
        return ReportBy(CMD_PROCESS_DETAILS);
    }

    static bool Has(const std::wstring& report, const std::wstring& part)
    {
        return report.find(part) != std::wstring::npos;
    }
};

TEST_F(ProcsRefusedTest, WhatMayNotBeOpenedGetsNoRequestAndNoBox)
{
    const Actor closed(ActorNamed(L"closed.exe"));
    const HWND window = closed.Make({.style = WS_POPUP, .closing = actor::Closing::Ignore});
    Front();
    const HWND question = AskToEnd(closed.Process(), L"closed.exe");
    const Actor another; // started under the question
    ASSERT_TRUE(another.Ready());
    Answer(question, yesKey);
    ExpectNotice(L"Can't end process");
    EXPECT_EQ(0, CloseCount(window));
    EXPECT_TRUE(closed.Running());
    EXPECT_TRUE(WaitFor([&] { return ListCount(list) == static_cast<int>(Processes().size()); }));
    ExpectUsable();
}

TEST_F(ProcsRefusedTest, WhatMayNotBeEndedStaysWithANotice)
{
    const Actor stubborn(ActorNamed(L"stubborn.exe"));
    Front();
    Answer(AskToEnd(stubborn.Process(), L"stubborn.exe"), yesKey);
    Answer(WaitForNoAnswerBox(), VK_RETURN);
    Answer(WaitForWarningBox(), yesKey);
    ExpectNotice(L"Can't kill process.");
    EXPECT_TRUE(stubborn.Running());
    ExpectUsable();
}

TEST_F(ProcsRefusedTest, ModulesThatCannotBeHadAreSaidInTheReport)
{
    EXPECT_TRUE(ReportOn(Actor(ActorNamed(L"secret.exe")))
                    .ends_with(L"\r\n\r\nLIST OF MODULES:\r\n\r\nCan't get modules info."));
    EXPECT_TRUE(ReportOn(Actor(ActorNamed(L"bare.exe")))
                    .ends_with(L"\r\n\r\nLIST OF MODULES:\r\n\r\nModule32First error."));
    const std::wstring report = ReportOn(Actor(ActorNamed(L"homeless.exe")));
    EXPECT_TRUE(Has(report, L"\r\n\r\nName: homeless.exe\r\nGlobal usage count: "));
    EXPECT_FALSE(Has(report, L"ExePath"));
}

TEST_F(ProcsRefusedTest, TheMemoryIsThatOfAllHeaps)
{
    const Actor actor;
    const Actor stubborn(ActorNamed(L"stubborn.exe"));
    const ScreenFont normal(FW_NORMAL, 2);
    EXPECT_TRUE(Has(ReportOn(actor), L"\r\nMemory usage: 3 KB\r\n"));
    EXPECT_TRUE(RowShowsSize(list, ListMark(list), L"3 KB", normal, 2));
    EXPECT_TRUE(Has(ReportOn(stubborn), L"\r\nMemory usage: 1.27 KB\r\n"));
    EXPECT_TRUE(RowShowsSize(list, ListMark(list), L"1.27 KB", normal, 2));
}
