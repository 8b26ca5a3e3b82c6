// What a long life of the system information page leaves behind: nothing.
#include "tests/ui/KeptFonts.h"
#include "tests/ui/LeakCheck.h"
#include "tests/ui/pages/sysinfo/ShownSysInfo.h"

class SysInfoLeaksTest : public ShownSysInfo
{
  protected:
    void ExpectNothingLeft(int times, const std::function<void()>& step, size_t keptBySystem = 0)
    {
        const auto forget = [&] {
            enumWindows.calls.clear();
            sleep.calls.clear();
            registerClass.calls.clear();
            device.calls.clear();
            device.updates.clear();
        };
        ::ExpectNothingLeft(times, step, forget, keptBySystem);
    }
};

TEST_F(SysInfoLeaksTest, AThousandRefreshesLeaveNothing)
{
    device.AddCards(3);
    OnPage([&](ProgramApp& app) { ExpectNothingLeft(1000, [&] { Run(app, CMD_REFRESH); }); });
}

TEST_F(SysInfoLeaksTest, RowsThatComeAndGoLeaveNothing)
{
    OnPage([&](ProgramApp& app) {
        ExpectNothingLeft(100, [&] {
            device.AddCards(30);
            device.hasBattery = false;
            Run(app, CMD_REFRESH);
            device.cards.clear();
            device.volumes.erase(device.volumes.upper_bound(L"\\"), device.volumes.end());
            device.hasBattery = true;
            Run(app, CMD_REFRESH);
        });
    });
}

TEST_F(SysInfoLeaksTest, AHundredShowingsLeaveNothing)
{
    device.AddCards(2);
    OnPage([&](ProgramApp& app) {
        ExpectNothingLeft(100, [&] {
            app.ActivateView(3);
            app.ActivateView(2);
            UpdateWindow(app.MainWindow());
        });
    });
}

TEST_F(SysInfoLeaksTest, ReportsLeaveNothing)
{
    device.AddCards(2);
    OnPage([&](ProgramApp& app) {
        for (const UINT report : {CMD_MEMORY_INFORMATION, CMD_BATTERY_INFORMATION}) {
            // Wine 8.0's edit control keeps a block for each one whose text is longer than a few hundred
            // characters.
            ExpectNothingLeft(
                50,
                [&] {
                    app.Later([&] { app.EndAllDialogs(); });
                    Run(app, report);
                },
                1);
        }
    });
}

TEST_F(SysInfoLeaksTest, TheEndOfThePageLeavesNothingOfIt)
{
    device.AddCards(12);
    KeptFonts fonts;
    ExpectNothingLeft(10, [&] {
        OnPage([](ProgramApp& app) { EXPECT_EQ(Page(app).RowCount(), 15u); });
        EXPECT_TRUE(fonts.Delete());
    });
}
