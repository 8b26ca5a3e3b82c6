// The system information page left alone: the program's timer refreshes it.
#include "tests/e2e/pages/sysinfo/GaugeSession.h"

class SysInfoTimerTest : public GaugeSession
{};

TEST_F(SysInfoTimerTest, ThePageIsRefreshedByItself)
{
    MakeCard(L"Card");
    Show(L"Card", plainFigures);
    ASSERT_FALSE(HasFatalFailure());
    program->Command(ShowTasksCommand);
    ASSERT_TRUE(program->WaitForPage(TasksPage));
    SettledCount(); // no other refresh is to come
    program->Command(ShowSysInfoCommand);
    ASSERT_TRUE(program->WaitForPage(SysInfoPage));
    ASSERT_TRUE(HasRows(4));
    RemoveCard(L"Card");
    EXPECT_TRUE(HasRows(3)) << "no refresh";
    ExpectGauge(2, plainBattery);
}
