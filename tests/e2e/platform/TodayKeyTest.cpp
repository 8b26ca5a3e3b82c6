// The Today screen's soft key.
#include "tests/e2e/ShellSession.h"

#include <tlhelp32.h>

using namespace rig;

class TodayKeyTest : public testing::Test
{
  protected:
    const HWND today = FindTopWindow({.className = L"DesktopExplorerWindow"});

    // A tap at so many quarters of the width; the program has been started by then, if it is at all.
    void Tap(int quarters, int fromBottom) const
    {
        RECT client = {};
        GetClientRect(today, &client);
        const int x = client.right * quarters / 4;
        Send(today, WM_LBUTTONUP, 0, MAKELPARAM(x, client.bottom - Scaled(fromBottom)));
    }

    static int Started()
    {
        const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
        PROCESSENTRY32W entry = {};
        entry.dwSize = sizeof entry;
        int count = 0;
        for (BOOL more = Process32FirstW(snapshot, &entry); more; more = Process32NextW(snapshot, &entry)) {
            count += lstrcmpiW(entry.szExeFile, L"Quorvane.exe") == 0 ? 1 : 0;
        }
        CloseHandle(snapshot);
        return count;
    }
};

TEST_F(TodayKeyTest, OnlyTheLeftKeyStartsTheProgram)
{
    ASSERT_NE(today, nullptr);
    ASSERT_TRUE(WaitFor([] { return Started() == 0; })) << "an earlier one is still there";
    Tap(3, 13); // the right key has no text
    Tap(1, 60); // above the bar
    EXPECT_EQ(Started(), 0);
    Tap(1, 13);
    EXPECT_EQ(Started(), 1);

    const HWND main = WaitForTopWindow({.className = mainWindowClass, .title = mainWindowTitle});
    EXPECT_TRUE(WaitFor([=] { return GetForegroundWindow() == main; }));
    PostMessageW(main, WM_CLOSE, 0, 0);
    EXPECT_TRUE(WaitFor([] { return Started() == 0; }));
}
