// Closing all running applications.
#include "pages/tasks/CloseTasks.h"
#include "tests/unit/ScriptedWindows.h"
#include "tests/unit/pages/tasks/TestHost.h"

#include <gtest/gtest.h>

class CloseTasksTest : public testing::Test
{
  protected:
    TestHost host;
    ScriptedWindows windows;

    HWND Add(const wchar_t* title, HWND owner = nullptr)
    {
        ScriptedWindow window;
        window.title = title;
        window.owner = owner;
        return windows.Add(window);
    }

    // The windows that were asked to close, in order.
    std::vector<HWND> Close(HWND spared = nullptr)
    {
        for (HWND window : windows.order) {
            EXPECT_TRUE(CloseAllTasksProc(window, reinterpret_cast<LPARAM>(spared)));
        }
        std::vector<HWND> asked;
        for (const SentMessage& each : windows.sent) {
            EXPECT_EQ(each.message, static_cast<UINT>(WM_CLOSE));
            EXPECT_EQ(each.wParam, 0u);
            EXPECT_EQ(each.lParam, 0);
            asked.push_back(each.window);
        }
        return asked;
    }
};

using Windows = std::vector<HWND>;

TEST_F(CloseTasksTest, EveryApplicationIsAskedToClose)
{
    HWND word = Add(L"Word");
    HWND excel = Add(L"Excel");
    EXPECT_EQ(Close(), (Windows{word, excel}));
}

TEST_F(CloseTasksTest, GoesOnForEveryWindowAndEndsForNone)
{
    EXPECT_FALSE(CloseAllTasksProc(nullptr, 0));
    EXPECT_TRUE(CloseAllTasksProc(reinterpret_cast<HWND>(0x123456), 0));
    EXPECT_TRUE(windows.sent.empty());
}

TEST_F(CloseTasksTest, WindowsThatAreNoApplicationsAreLeftAlone)
{
    ScriptedWindow window;
    window.title = L"window";
    window.visible = false;
    windows.Add(window);
    window.visible = true;
    window.enabled = false;
    windows.Add(window);
    window.enabled = true;
    window.exStyle = 0x08000000;
    windows.Add(window);
    window.exStyle = 0x80;
    windows.Add(window);
    EXPECT_EQ(Close(), Windows{});
}

TEST_F(CloseTasksTest, TheTopOwnerIsAskedOnceForEachEligibleWindow)
{
    HWND top = Add(L"Word");
    HWND dialog = Add(L"Open", top);
    Add(L"Help", dialog);
    EXPECT_EQ(Close(), (Windows{top, top, top}));
}

TEST_F(CloseTasksTest, AHiddenTopOwnerIsAskedToo)
{
    HWND top = Add(L"Word");
    windows.windows[top].visible = false;
    Add(L"Open", top);
    EXPECT_EQ(Close(), Windows{top});
}

TEST_F(CloseTasksTest, TheProgramItselfIsSpared)
{
    HWND main = Add(L"Quorvane");
    Add(L"Information", main);
    HWND word = Add(L"Word");
    host.SetMainWindow(main);
    EXPECT_EQ(Close(), Windows{word});
}

TEST_F(CloseTasksTest, TheSparedWindowIsSparedWithAllItOwns)
{
    HWND word = Add(L"Word");
    Add(L"Open", word);
    HWND excel = Add(L"Excel");
    EXPECT_EQ(Close(word), Windows{excel});
}

TEST_F(CloseTasksTest, AnOwnedWindowThatIsGivenDoesNotSpareItsOwner)
{
    HWND word = Add(L"Word");
    HWND dialog = Add(L"Open", word);
    EXPECT_EQ(Close(dialog), (Windows{word, word}));
}

TEST_F(CloseTasksTest, UntitledTasksAreSparedOnEveryPlatform)
{
    for (const Platform platform : {Platform::PocketPC, Platform::Smartphone}) {
        host.SetPlatform(platform);
        Add(L"");
        HWND top = Add(L"");
        windows.windows[top].visible = false;
        Add(L"", top);
        EXPECT_EQ(Close(), Windows{});
    }
}

TEST_F(CloseTasksTest, OneTitleOfWindowAndTopOwnerIsEnough)
{
    HWND untitled = Add(L"");
    Add(L"Open", untitled);
    HWND hidden = Add(L"Word");
    windows.windows[hidden].visible = false;
    Add(L"", hidden);
    EXPECT_EQ(Close(), (Windows{untitled, hidden}));
}

TEST_F(CloseTasksTest, TheShellsWindowsAreSparedByTheTopOwnersClass)
{
    host.SetPlatform(Platform::Smartphone);
    HWND home = Add(L"Today");
    windows.windows[home].className = L"DESKTOPexplorerWINDOW";
    HWND shell = Add(L"File Explorer");
    windows.windows[shell].className = L"explore";
    Add(L"Open", shell);
    HWND word = Add(L"Word");
    windows.windows[Add(L"Open", word)].className = L"Explore";
    HWND start = Add(L"Start");
    windows.windows[start].className = L"MSStart";
    EXPECT_EQ(Close(), (Windows{word, word, start}));
}

TEST_F(CloseTasksTest, WindowsThatVanishAtAnyMomentDoNoHarm)
{
    for (int questions = 0; questions < 30; questions++) {
        windows.order.clear();
        HWND top = Add(L"Word");
        Add(L"Open", top);
        windows.lifeInQuestions = questions;
        Close();
        windows.lifeInQuestions = -1;
    }
}
