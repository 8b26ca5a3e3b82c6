// Every page while the screen is turned and turned back.
// profiles: pocketpc pocketpc-vga smartphone
#include "rig/Picture.h"
#include "tests/e2e/TurnedSession.h"

using namespace rig;

class TurnedPagesTest : public TurnedSession
{};

TEST_F(TurnedPagesTest, EveryPageFillsTheTurnedScreen)
{
    for (int page : pageRing) {
        Show(page);
        TurnSideways();
        ExpectLaidOut(page);
        ExpectNothingStale();
        TurnUpright();
        ExpectLaidOut(page);
        ExpectNothingStale();
    }
}
