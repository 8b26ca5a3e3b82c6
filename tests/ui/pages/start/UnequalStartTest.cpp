// The launcher page on a screen of unequal resolutions.
#include "tests/ui/UnequalScreen.h"
#include "tests/ui/pages/start/StartPageTest.h"

class UnequalStartTest : public StartPageTest, protected UnequalScreen
{};

TEST_F(UnequalStartTest, TheSearchBoxsMarginsGoByBoth)
{
    InOwnProcess([&] {
        OnPage([](ProgramApp& app) {
            const int header = Page(app).HeaderHeight();
            const LONG width = ClientSize(Page(app).Window()).cx;
            EXPECT_EQ(OnPageRect(app, Box(app)), (RECT{12, header + 4, width - 12, header + 24}));
            EXPECT_EQ(OnPageRect(app, List(app)).top, header + 28);
        });
    });
}
