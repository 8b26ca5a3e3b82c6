// A device without QueryPolicy does not say what tiers it has: a process that may not be ended is refused
// without a word of them.
// profiles: pocketpc
#include "tests/e2e/ProcsScreen.h"
#include "tests/e2e/ScreenText.h"
#include "tests/runner/RunnerLog.h"

#include "rig/Desktop.h"

using namespace rig;

class MissingPolicyTest : public ProcsScreen
{
  protected:
    static void SetUpTestSuite() { StartWithout(L"aygshell#364"); }
    static void TearDownTestSuite()
    {
        PageScreen::TearDownTestSuite();
        StartWithout(L"");
    }
};

TEST_F(MissingPolicyTest, TheHandheldIsRefusedWithoutAWordOfTiers)
{
    Answer(AskToEnd(ProcessOf(Today()), L"handheld.exe"), yesKey);
    const HWND notice = WaitForNotice();
    ASSERT_TRUE(notice);
    EXPECT_TRUE(NoticeSays(Main(), notice, L"Can't end process"));
    ExpectUsable();
}
