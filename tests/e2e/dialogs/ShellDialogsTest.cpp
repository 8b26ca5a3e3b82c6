// Closing the program while something is open above its page: a menu, a box, a notice, dialogs.
// device's executable: pocketpc pocketpc-vga smartphone
#include "rig/Picture.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

namespace {

// The ways in which a close request reaches the main window.
enum class Way
{
    ExitCommand,
    Posted,
    Sent
};

} // namespace

static constexpr Way allWays[] = {Way::ExitCommand, Way::Posted, Way::Sent};

namespace {

// What is open.
enum class Above
{
    Menu,
    Submenu,
    PopUp,
    About,
    Notice,
    Report,
    WindowsList
};

} // namespace

static constexpr Above allAbove[] = {Above::Menu,   Above::Submenu, Above::PopUp,      Above::About,
                                     Above::Notice, Above::Report,  Above::WindowsList};

namespace {

struct Case
{
    Above above;
    Way way;
};

} // namespace

static std::vector<Case> AllCases()
{
    std::vector<Case> cases;
    for (Above above : allAbove) {
        for (Way way : allWays) {
            cases.push_back({above, way});
        }
    }
    return cases;
}

static std::string NameOf(const testing::TestParamInfo<Case>& info)
{
    const char* above[] = {"Menu", "Submenu", "PopUp", "About", "Notice", "Report", "WindowsList"};
    const char* way[] = {"ByExit", "Posted", "Sent"};
    return std::string(above[static_cast<int>(info.param.above)]) + way[static_cast<int>(info.param.way)];
}

class ShellDialogsTest : public ShellSession, public testing::WithParamInterface<Case>
{
  protected:
    void RequestClose(Way way) const
    {
        switch (way) {
        case Way::ExitCommand:
            program->Command(ExitCommand);
            break;
        case Way::Posted:
            PostMessageW(main, WM_CLOSE, 0, 0);
            break;
        case Way::Sent:
            Send(main, WM_CLOSE);
            break;
        }
    }

    void OpenAbove(Above above)
    {
        switch (above) {
        case Above::Menu:
            ASSERT_TRUE(PressMenuKey());
            break;
        case Above::Submenu:
            ASSERT_TRUE(PressMenuKey());
            MenuKeys(VK_UP, 3);
            MenuKeys(VK_RIGHT);
            MenuKeys(VK_DOWN);
            break;
        case Above::PopUp:
            Tap(StripPoint(TasksPage, ScreenRectOf(main).right / 2));
            ASSERT_TRUE(WaitFor([] { return OpenMenu(); }));
            break;
        case Above::About:
            program->Command(AboutCommand);
            ASSERT_TRUE(program->WaitForDialog());
            break;
        case Above::Notice:
            program->Command(SettingsCommand);
            ASSERT_TRUE(WaitFor([&] { return program->Notice(); }));
            break;
        case Above::Report:
            ASSERT_TRUE(OpenReport());
            break;
        case Above::WindowsList:
            ASSERT_TRUE(OpenWindowsList());
            break;
        }
    }
};

TEST_P(ShellDialogsTest, TheProgramEndsWithTheExitCodeZero)
{
    ASSERT_NO_FATAL_FAILURE(OpenAbove(GetParam().above));
    RequestClose(GetParam().way);
    ExpectEnd();
}

INSTANTIATE_TEST_SUITE_P(All, ShellDialogsTest, testing::ValuesIn(AllCases()), NameOf);
