// The refresh by time, by activation and after closing all reaches every page but the launcher.
#include "resources/ids.h"
#include "tests/ui/ProgramTest.h"

#include <algorithm>

class PeriodicRefreshTest : public ProgramTest
{
  protected:
    // How often the list of the page was refilled and painted meanwhile: each refill makes its column anew.
    static int RefillsDuring(ProgramApp& app, int page, const std::function<void()>& step)
    {
        app.ActivateView(page);
        HWND list = GetDlgItem(app.ActiveView()->Window(), IDC_LIST);
        UpdateWindow(list);
        const SPY(SendMessageW) send;
        const SPY(UpdateWindow) update;
        step();
        const auto columns = std::count_if(send.calls.begin(), send.calls.end(), [&](const auto& call) {
            return std::get<0>(call) == list && std::get<1>(call) == LVM_INSERTCOLUMNW;
        });
        const auto paints = std::count(update.calls.begin(), update.calls.end(), std::make_tuple(list));
        EXPECT_EQ(columns, paints) << page;
        return static_cast<int>(columns);
    }
};

static const std::pair<int, int> refillsOfPages[] = {{1, 1}, {2, 1}, {3, 0}, {4, 1}};

TEST_F(PeriodicRefreshTest, TheTimerRefreshesEveryPageButTheLauncher)
{
    InProgram([](ProgramApp& app) {
        for (const auto& [page, refills] : refillsOfPages) {
            EXPECT_EQ(RefillsDuring(app, page, [&] { SendMessageW(app.MainWindow(), WM_TIMER, 1, 0); }),
                      refills)
                << page;
        }
    });
}

TEST_F(PeriodicRefreshTest, ActivationRefreshesEveryPageButTheLauncher)
{
    InProgram([](ProgramApp& app) {
        for (const auto& [page, refills] : refillsOfPages) {
            EXPECT_EQ(
                RefillsDuring(app, page, [&] { SendMessageW(app.MainWindow(), WM_ACTIVATE, WA_ACTIVE, 0); }),
                refills)
                << page;
        }
    });
}

TEST_F(PeriodicRefreshTest, ClosingAllWaitsASecondAndRefreshesEveryPageButTheLauncher)
{
    InProgram([&](ProgramApp& app) {
        for (const auto& [page, refills] : refillsOfPages) {
            sleep.calls.clear();
            enumWindows.calls.clear();
            EXPECT_EQ(RefillsDuring(app, page,
                                    [&] { SendMessageW(app.MainWindow(), WM_COMMAND, CMD_CLOSE_ALL, 0); }),
                      refills)
                << page;
            ASSERT_FALSE(enumWindows.calls.empty()) << page;
            EXPECT_EQ(std::get<1>(enumWindows.calls[0]), 0) << "no window is spared";
            ASSERT_EQ(static_cast<int>(sleep.calls.size()), refills) << page;
            if (refills != 0) {
                EXPECT_EQ(std::get<0>(sleep.calls[0]), 1000u) << page;
            }
        }
    });
}
