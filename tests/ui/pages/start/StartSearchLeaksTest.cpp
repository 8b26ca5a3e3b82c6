// What a long life of searches leaves behind: nothing.
#include "tests/ui/pages/start/StartLeaks.h"

class StartSearchLeaksTest : public StartLeaks
{};

TEST_F(StartSearchLeaksTest, AThousandSearchesLeaveNothing)
{
    menu.AddMany(20);
    OnPage([&](ProgramApp& app) {
        int turn = 0;
        const wchar_t* const searches[] = {L"p", L"program 1", L"nothing", L""};
        ExpectNothingLeft(1000, [&] { Search(app, searches[turn++ % 4]); });
        EXPECT_EQ(Count(app), turn % 4 == 3 ? 0 : turn % 4 == 2 ? 11 : 20);
    });
}
