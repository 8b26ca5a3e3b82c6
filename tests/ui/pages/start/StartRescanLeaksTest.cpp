// What reading the Start menu again and again leaves behind: nothing.
#include "tests/ui/pages/start/StartLeaks.h"

class StartRescanLeaksTest : public StartLeaks
{};

// The table of the well-known programs grows on purpose: its block is the same or another one.
TEST_F(StartRescanLeaksTest, AHundredRefreshesLeaveNothing)
{
    menu.AddMany(20);
    OnPage([&](ProgramApp& app) {
        ExpectNothingLeft(100, [&] {
            menu.Add(L"Another.lnk");
            Run(app, CMD_REFRESH);
            menu.Remove(L"Another.lnk");
            Run(app, CMD_REFRESH);
        });
        for (HRESULT* answer : {&menu.allocatorAnswer, &menu.locationAnswer}) {
            ExpectNothingLeft(100, [&] {
                *answer = *answer == S_OK ? E_FAIL : S_OK;
                Run(app, CMD_REFRESH);
            });
            *answer = S_OK;
        }
    });
}
