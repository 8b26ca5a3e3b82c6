// Two starts at the same moment, while the program is not running. Neither can know of the other, so there
// may be one instance or two afterwards; what they were started for is done in any case.
// device's executable: pocketpc pocketpc-vga
#include "tests/e2e/ShellSession.h"

using namespace rig;

class StartTwiceTest : public ShellSession
{
  protected:
    static constexpr int rounds = 3;

    void SetUp() override {}

    static std::vector<HWND> Mains()
    {
        std::vector<HWND> mains;
        for (HWND window : TopWindows()) {
            if (ClassOf(window) == mainWindowClass) {
                mains.push_back(window);
            }
        }
        return mains;
    }
    static HWND MainOf(const ChildProcess& instance)
    {
        return FindTopWindow({.className = mainWindowClass, .process = instance.Id()});
    }
    // An instance ends without a word, or shows this page.
    static bool ShowsOrHasEnded(const ChildProcess& instance, const std::wstring& pageClass)
    {
        if (instance.ExitCode()) {
            return true;
        }
        const HWND page = FindDescendant(MainOf(instance), pageClass);
        return page && IsWindowVisible(page);
    }

    void StartTwo(const std::wstring& arguments, const std::wstring& pageClass) const
    {
        const std::wstring executable = ProgramFolder() + L"\\Quorvane.exe";
        const ChildProcess one(executable, arguments);
        const ChildProcess two(executable, arguments);
        for (const ChildProcess* instance : {&one, &two}) {
            EXPECT_TRUE(WaitFor([&] { return ShowsOrHasEnded(*instance, pageClass); })) << "not done";
        }
        const std::vector<HWND> mains = Mains();
        EXPECT_GE(mains.size(), 1u);
        for (HWND window : mains) {
            EXPECT_TRUE(Answers(window, patience));
            PostMessageW(window, WM_CLOSE, 0, 0);
        }
        EXPECT_EQ(one.ExitCode(patience), 0u);
        EXPECT_EQ(two.ExitCode(patience), 0u);
        EXPECT_TRUE(WaitFor([] { return Mains().empty(); }));
    }
};

TEST_F(StartTwiceTest, ByTheUser)
{
    for (int round = 0; round < rounds; round++) {
        StartTwo(L"", L"QuorvaneV1");
    }
}

TEST_F(StartTwiceTest, ByButtons)
{
    for (int round = 0; round < rounds; round++) {
        StartTwo(L"193 4*4", L"QuorvaneV4");
    }
}
