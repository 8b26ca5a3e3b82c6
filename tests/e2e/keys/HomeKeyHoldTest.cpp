// A Smartphone's Home key that is bound, really held and really pressed, with another program in front.
// profiles: smartphone
// device's executable: smartphone
#include "rig/Actor.h"
#include "tests/e2e/keys/KeysScreen.h"

using namespace rig;
using Clock = std::chrono::steady_clock;

class HomeKeyHoldTest : public KeysScreen
{
  protected:
    const Actor actor;
    HWND front = nullptr;

    HomeKeyHoldTest()
    {
        Forget();
        const DWORD processes = 4;
        RegSetKeyValueW(HKEY_CURRENT_USER, settings, L"HomeKeyCommand", REG_DWORD, &processes,
                        sizeof processes);
    }
    ~HomeKeyHoldTest() override { Forget(); }

    static constexpr wchar_t settings[] = L"Software\\Quorvane\\HomeKeySetting";
    static void Forget() { RegDeleteTreeW(HKEY_CURRENT_USER, settings); }

    void SetUp() override
    {
        KeysScreen::SetUp();
        front = actor.Make({.title = L"In front"});
        ASSERT_TRUE(Raise(front));
    }
    // Held for at least so long, of which a busy program may see less.
    static void HoldHome(std::chrono::milliseconds time)
    {
        ExtendedKeyDown(VK_HOME);
        const auto end = Clock::now() + time;
        WaitFor([=] { return Clock::now() >= end; });
        ExtendedKeyUp(VK_HOME);
    }
    bool HoldShows(int page) const
    {
        for (int seconds = 2; seconds < 6 && program->VisiblePage() != page; seconds++) {
            HoldHome(std::chrono::seconds(seconds));
            WaitFor([=, this] { return program->VisiblePage() == page; }, std::chrono::milliseconds(3000));
        }
        return program->VisiblePage() == page && InFront(main);
    }
};

TEST_F(HomeKeyHoldTest, AHoldPerformsWhatIsBoundAndAPressNothing)
{
    ExtendedKeyDown(VK_HOME);
    ExtendedKeyUp(VK_HOME);
    Send(main, WM_NULL);
    EXPECT_EQ(program->VisiblePage(), TasksPage);
    EXPECT_EQ(GetForegroundWindow(), front) << "not even the home screen comes";
    EXPECT_TRUE(HoldShows(ProcsPage));
}

TEST_F(HomeKeyHoldTest, AnotherActionIsPerformedAsSoonAsItIsConfirmed)
{
    ASSERT_TRUE(ComeToFront());
    const HWND dialog = OpenByMenu();
    ASSERT_TRUE(dialog);
    const HWND list = GetDlgItem(dialog, IDC_HOME_ACTION);
    ASSERT_TRUE(HasFocus(list));
    PressKey(VK_DOWN);
    EXPECT_TRUE(Shows(list, L"System information"));
    ASSERT_TRUE(Close(dialog, VK_F1));
    ASSERT_TRUE(Raise(front));
    EXPECT_TRUE(HoldShows(SysInfoPage));
}

TEST_F(HomeKeyHoldTest, AKeyThatIsGivenBackGoesToTheHomeScreen)
{
    ASSERT_TRUE(ComeToFront());
    const HWND dialog = OpenByMenu();
    ASSERT_TRUE(dialog);
    const HWND list = GetDlgItem(dialog, IDC_HOME_ACTION);
    ASSERT_TRUE(HasFocus(list));
    PressKey(VK_HOME); // the number pad's
    EXPECT_TRUE(Shows(list, L"Don't handle"));
    ASSERT_TRUE(Close(dialog, VK_F1));
    ASSERT_TRUE(Raise(front));
    ExtendedKeyDown(VK_HOME);
    ExtendedKeyUp(VK_HOME);
    EXPECT_TRUE(InFront(FindTopWindow({.className = L"DesktopExplorerWindow"})));
}
