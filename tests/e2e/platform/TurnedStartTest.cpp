// A handheld whose profile says that it is held sideways: everything lies on the turned screen from the
// start. profiles: pocketpc smartphone
#include "tests/e2e/SessionProfile.h"
#include "tests/e2e/TurnedSession.h"
#include "tests/support/TempFolder.h"

using namespace rig;

namespace {

// In place of the session's own handheld, which is gone for the rest of this process: the launcher starts it
// again for the next one.
class SidewaysHandheld
{
    const TempFolder folder;
    const std::wstring executable = ProgramFolder() + L"\\handheld.exe";
    std::optional<ChildProcess> shell;

    std::optional<DWORD> Tell(const std::wstring& option) const
    {
        return ChildProcess(executable, option).ExitCode(2 * patience);
    }

  public:
    SidewaysHandheld()
    {
        const std::wstring profile = folder.Path(L"sideways.ini");
        UseProfile(profile, ScreenOfSession() + L"orientation = 270\n");
        EXPECT_EQ(Tell(L"--end"), 0u);
        shell.emplace(executable, L"--profile \"" + profile + L"\"");
        EXPECT_EQ(Tell(L"--wait"), 0u);
    }
    ~SidewaysHandheld()
    {
        EXPECT_EQ(Tell(L"--end"), 0u);
        UseSessionProfile();
    }
    SidewaysHandheld(const SidewaysHandheld&) = delete;
    SidewaysHandheld& operator=(const SidewaysHandheld&) = delete;
};

} // namespace

class TurnedStartTest : public TurnedSession
{
  protected:
    const SidewaysHandheld handheld;

    ~TurnedStartTest() override { program.reset(); }
};

TEST_F(TurnedStartTest, PagesDialogsAndNoticesLieOnTheTurnedScreen)
{
    ASSERT_TRUE(BecomesSideways());
    SettledCount();
    for (int page : pageRing) {
        Show(page);
        ExpectLaidOut(page);
        ExpectNothingStale(page);
    }
    Show(TasksPage);
    const HWND dialog = OpenReport();
    ASSERT_TRUE(dialog);
    ExpectDialogFills(dialog, IDC_INFORMATION_TEXT);
    PressKey(VK_RETURN);
    ASSERT_TRUE(WaitFor([=] { return !IsWindow(dialog); }));

    program->Command(SettingsCommand);
    const HWND notice = WaitFor([&] { return program->Notice(); });
    ASSERT_TRUE(notice);
    const RECT screen = ScreenRect();
    const RECT place = ScreenRectOf(notice);
    EXPECT_GE(place.top, Scaled(26));
    EXPECT_LE(place.right, screen.right);
    EXPECT_GT(place.right, uprightScreen.right) << "it is placed as on the upright screen";
    ExpectKeysReachThePage(TasksPage);
}
