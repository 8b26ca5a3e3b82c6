// The reports on memory and battery, whole, and the dialog they are shown in.
// device's executable: pocketpc
#include "rig/Controls.h"
#include "tests/e2e/pages/sysinfo/GaugeSession.h"

using namespace rig;

static const wchar_t memoryFigures[] = L"[memory]\nphysical = 67108864\nphysical-free = 34340864\n"
                                       L"virtual = 1024\nvirtual-free = 3072\n"
                                       L"page-file = 8589934592\npage-file-free = 1073741824\n"
                                       L"[storage]\n\\ = 6442450944, 4831838208\n";
// A device counts its memory in 32 bits, where more free than there is leaves nearly 4 GB in use.
static const wchar_t memoryText[] =
    L"PHYSICAL MEMORY:\r\nTotal: 64 MB\r\nAvailable: 32.75 MB\r\nUsed: 31.25 MB"
    L"\r\n\r\nVIRTUAL MEMORY:\r\nTotal: 1 KB\r\nAvailable: 3 KB\r\nUsed: 4 GB"
    L"\r\n\r\nPAGE FILE:\r\nTotal: 4 GB\r\nAvailable: 1 GB\r\nUsed: 3 GB"
    L"\r\n\r\nSTORAGE MEMORY:\r\nTotal: 6 GB\r\nAvailable: 4.50 GB\r\nUsed: 1.50 GB";

class SysInfoReportE2eTest : public GaugeSession
{
  protected:
    void Close(HWND dialog, WORD key) const
    {
        ASSERT_TRUE(InFront(dialog));
        PressKey(key);
        EXPECT_TRUE(WaitFor([=] { return !IsWindow(dialog); })) << "the key " << key << " does not close it";
    }

    void ExpectReport(int command, const std::wstring& text, WORD closeKey = VK_RETURN) const
    {
        const HWND dialog = OpenReport(command);
        ASSERT_TRUE(dialog);
        EXPECT_EQ(text, ReportText(dialog));
        Close(dialog, closeKey);
        EXPECT_EQ(SysInfoPage, program->VisiblePage());
    }

    void ExpectBatteryReport(const std::wstring& section, const std::wstring& text)
    {
        Show(L"", L"[battery]\n" + section);
        ASSERT_FALSE(HasFatalFailure());
        ExpectReport(BatteryInfoCommand, text);
    }

    static int FirstLine(HWND dialog)
    {
        return static_cast<int>(Send(GetDlgItem(dialog, IDC_INFORMATION_TEXT), EM_GETFIRSTVISIBLELINE));
    }
};

TEST_F(SysInfoReportE2eTest, MemoryWithoutCards)
{
    Show(L"", memoryFigures);
    ASSERT_FALSE(HasFatalFailure());
    ExpectReport(MemoryInfoCommand, memoryText);
}

TEST_F(SysInfoReportE2eTest, MemoryAndCards)
{
    for (const wchar_t* card : {L"Storage Card", L"Mute", L"Odd %s", L"Nothing"}) {
        MakeCard(card);
    }
    Show(L"Storage Card, \"\", Gone, Mute, Odd %s, Nothing", std::wstring(memoryFigures) +
                                                                 L"\\Storage Card = 536870912, 402653184\n"
                                                                 L"\\Gone = 4096, 4096\n"
                                                                 L"\\Mute = fail\n"
                                                                 L"\\Odd %s = 1024, 3072\n"
                                                                 L"\\Nothing = 0, 0\n");
    ASSERT_FALSE(HasFatalFailure());
    ASSERT_TRUE(HasRows(7));
    // A card that does not tell its size has that of the one before.
    ExpectReport(MemoryInfoCommand,
                 std::wstring(memoryText) +
                     L"\r\n\r\nStorage Card\r\nTotal: 512 MB\r\nAvailable: 384 MB\r\nUsed: 128 MB"
                     L"\r\n\r\nMute\r\nTotal: 512 MB\r\nAvailable: 384 MB\r\nUsed: 128 MB"
                     L"\r\n\r\nOdd %s\r\nTotal: 1 KB\r\nAvailable: 3 KB\r\nUsed: -2048 B"
                     L"\r\n\r\nNothing\r\nTotal: 0 B\r\nAvailable: 0 B\r\nUsed: 0 B");
}

TEST_F(SysInfoReportE2eTest, CardsAreAskedForAgain)
{
    const std::wstring card = L"\r\n\r\nCard\r\nTotal: 2 KB\r\nAvailable: 1 KB\r\nUsed: 1 KB";
    MakeCard(L"Card");
    Show(L"Card", std::wstring(memoryFigures) + L"\\Card = 2048, 1024\n");
    ASSERT_FALSE(HasFatalFailure());
    ASSERT_TRUE(HasRows(4));
    ExpectReport(MemoryInfoCommand, memoryText + card);
    RemoveCard(L"Card");
    ExpectReport(MemoryInfoCommand, memoryText);
    MakeCard(L"Card");
    ExpectReport(MemoryInfoCommand, memoryText + card);
}

TEST_F(SysInfoReportE2eTest, ABatteryOnMains)
{
    ExpectBatteryReport(L"percent = 87\nac = 1\nfull-life = 21600\nlife = 3600\nbackup-percent = 100\n",
                        L"AC POWER STATUS:\r\n Online (Charging)"
                        L"\r\n\r\nPercentage of full battery charge remaining: 87%"
                        L"\r\n\r\nNumber of seconds of battery life when at full charge: 21600 sec"
                        L"\r\n\r\nNumber of seconds of battery life remaining: 3600 sec"
                        L"\r\n\r\nPercentage of full backup battery charge remaining: 100%");
}

TEST_F(SysInfoReportE2eTest, ABatteryInUseOfWhichNothingElseIsKnown)
{
    ExpectBatteryReport(
        L"percent = 255\nac = 0\nfull-life = 4294967295\nlife = 4294967295\nbackup-percent = 255\n",
        L"AC POWER STATUS:\r\n Offline (Battery used)"
        L"\r\n\r\nPercentage of full battery charge remaining: Unknown"
        L"\r\n\r\nNumber of seconds of battery life when at full charge: Unknown"
        L"\r\n\r\nNumber of seconds of battery life remaining: Unknown"
        L"\r\n\r\nPercentage of full backup battery charge remaining: Unknown");
}

TEST_F(SysInfoReportE2eTest, BackupPowerAndTheFiguresNextToTheUnknownOnes)
{
    ExpectBatteryReport(L"percent = 100\nac = 2\nfull-life = 4294967294\nlife = 0\nbackup-percent = 101\n",
                        L"AC POWER STATUS:\r\n Backup power"
                        L"\r\n\r\nPercentage of full battery charge remaining: 100%"
                        L"\r\n\r\nNumber of seconds of battery life when at full charge: 4294967294 sec"
                        L"\r\n\r\nNumber of seconds of battery life remaining: 0 sec"
                        L"\r\n\r\nPercentage of full backup battery charge remaining: Unknown");
}

TEST_F(SysInfoReportE2eTest, AnUnknownSourceOfPowerAndEmptyBatteries)
{
    ExpectBatteryReport(L"percent = 0\nac = 255\nfull-life = 1\nlife = 4294967295\nbackup-percent = 0\n",
                        L"AC POWER STATUS:\r\n Unknown"
                        L"\r\n\r\nPercentage of full battery charge remaining: 0%"
                        L"\r\n\r\nNumber of seconds of battery life when at full charge: 1 sec"
                        L"\r\n\r\nNumber of seconds of battery life remaining: Unknown"
                        L"\r\n\r\nPercentage of full backup battery charge remaining: 0%");
}

TEST_F(SysInfoReportE2eTest, WithoutABatteryThereIsOneLine)
{
    ExpectBatteryReport(L"present = no\n", L"Battery info is not available");
    EXPECT_TRUE(HasRows(2));
}

TEST_F(SysInfoReportE2eTest, KeysScrollAndCloseIt)
{
    for (const wchar_t* card : {L"One", L"Two", L"Three"}) { // more lines than fit
        MakeCard(card);
    }
    Show(L"One, Two, Three", memoryFigures);
    ASSERT_FALSE(HasFatalFailure());
    const HWND dialog = OpenReport(MemoryInfoCommand);
    ASSERT_TRUE(dialog);
    ASSERT_TRUE(InFront(dialog));
    EXPECT_EQ(L"Information", TextOf(dialog));
    PressKey(VK_DOWN, 2);
    EXPECT_TRUE(WaitFor([=] { return FirstLine(dialog) == 2; }));
    PressKey(VK_UP);
    EXPECT_TRUE(WaitFor([=] { return FirstLine(dialog) == 1; }));
    Close(dialog, VK_F1);
    ExpectKeysReachThePage(SysInfoPage);
}

TEST_F(SysInfoReportE2eTest, ATapOnItsSoftKeyClosesIt)
{
    Show(L"", plainFigures);
    ASSERT_FALSE(HasFatalFailure());
    const HWND dialog = OpenReport(BatteryInfoCommand);
    ASSERT_TRUE(dialog);
    ASSERT_TRUE(InFront(dialog));
    const HWND bar = WaitFor([=] { return BarOf(dialog); });
    ASSERT_TRUE(bar);
    Tap(SoftKeyPoint(bar, 0));
    EXPECT_TRUE(WaitFor([=] { return !IsWindow(dialog); }));
    ExpectKeysReachThePage(SysInfoPage);
}

TEST_F(SysInfoReportE2eTest, TheProgramMayBeClosedBelowAReport)
{
    for (int command : {MemoryInfoCommand, BatteryInfoCommand}) {
        Show(L"", plainFigures);
        ASSERT_FALSE(HasFatalFailure());
        ASSERT_TRUE(OpenReport(command));
        PostMessageW(main, WM_CLOSE, 0, 0);
        ExpectEnd();
    }
}
