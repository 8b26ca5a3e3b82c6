// What the shell is asked for to start a shortcut.
#include "pages/start/StartShortcut.h"
#include "tests/support/Spy.h"

#include <gtest/gtest.h>

class StartShortcutTest : public testing::Test
{
  protected:
    SPY(ShellExecuteEx) execute;
    SPY(CloseHandle) close;
    SPY(MessageBoxW) box;
    HANDLE process = reinterpret_cast<HANDLE>(0x5670);
    BOOL answer = TRUE;
    std::wstring file;
    std::wstring parameters = L"?";
    SHELLEXECUTEINFOW asked = {};

    StartShortcutTest()
    {
        execute.instead = [this](SHELLEXECUTEINFOW* info) {
            asked = *info;
            file = info->lpFile;
            parameters = info->lpParameters ? info->lpParameters : L"null";
            info->hProcess = process;
            return answer;
        };
        close.instead = [this](HANDLE handle) { return handle == process || close.Real(handle); };
    }

    int Closed() const
    {
        int closed = 0;
        for (const auto& [handle] : close.calls) {
            closed += handle == process;
        }
        return closed;
    }
};

TEST_F(StartShortcutTest, TheShortcutItselfIsOpened)
{
    StartShortcut(L"\\Menu\\Calc & 100%.lnk");
    ASSERT_EQ(execute.calls.size(), 1u);
    EXPECT_EQ(asked.cbSize, sizeof(void*) == 4 ? 60u : 112u);
    EXPECT_EQ(asked.fMask, 0x40u);
    EXPECT_EQ(asked.lpVerb, nullptr);
    EXPECT_EQ(file, L"\\Menu\\Calc & 100%.lnk");
    EXPECT_EQ(parameters, L"");
    EXPECT_EQ(asked.lpDirectory, nullptr);
    EXPECT_EQ(asked.nShow, 5);
    EXPECT_EQ(asked.hwnd, nullptr);
    EXPECT_EQ(asked.hProcess, nullptr);
    EXPECT_EQ(asked.hInstApp, nullptr);
    EXPECT_EQ(asked.lpIDList, nullptr);
    EXPECT_EQ(asked.lpClass, nullptr);
    EXPECT_EQ(asked.hkeyClass, nullptr);
    EXPECT_EQ(asked.dwHotKey, 0u);
    EXPECT_EQ(asked.hIcon, nullptr);
}

TEST_F(StartShortcutTest, TheProcessIsLetGo)
{
    StartShortcut(L"\\a.lnk");
    EXPECT_EQ(Closed(), 1);
}

TEST_F(StartShortcutTest, WithoutAProcessThereIsNothingToLetGo)
{
    process = nullptr;
    close.instead = nullptr;
    StartShortcut(L"\\a.lnk");
    EXPECT_EQ(Closed(), 0);
}

TEST_F(StartShortcutTest, AFailureIsSilentAndClosesNothing)
{
    answer = FALSE;
    StartShortcut(L"\\a.lnk");
    EXPECT_EQ(Closed(), 0);
    EXPECT_TRUE(box.calls.empty());
}
