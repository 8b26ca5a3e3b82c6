// When the launcher page reads the Start menu, and what it shows where there is nothing.
// profiles: pocketpc pocketpc-vga smartphone
#include "tests/e2e/StartScreen.h"

#include "resources/ids.h"
#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/MenuTwin.h"
#include "rig/WaitFor.h"

using namespace rig;

class StartRefreshTest : public StartScreen
{};

TEST_F(StartRefreshTest, OnlyRefreshFindsANewShortcut)
{
    Shortcut(L"Another", L"\\x.exe");
    Send(Main(), WM_TIMER, 1);
    EXPECT_EQ(4, ListCount(list));
    Search(L"o");
    PressKey(VK_BACK);
    EXPECT_TRUE(BoxHas(L""));
    EXPECT_TRUE(HasRows(4));
    Do(CMD_SHOW_TASKS);
    Send(Main(), WM_TIMER, 1);
    Do(CMD_REFRESH);
    Do(CMD_SHOW_START);
    EXPECT_EQ(4, ListCount(list));
    Choose(3);
    EXPECT_TRUE(HasRows(5));
    EXPECT_TRUE(RowIs(0, L"Another"));
    ExpectUsable();
}

TEST_F(StartRefreshTest, TheStartOfTheProgramFindsIt)
{
    Shortcut(L"Another", L"\\x.exe");
    program.reset();
    program.emplace(Program::Start());
    ASSERT_TRUE(program->WaitForMainWindow());
    ASSERT_TRUE(program->WaitForPage(1));
    Do(CMD_SHOW_START);
    EXPECT_EQ(5, ListCount(program->List(3)));
}

TEST_F(StartRefreshTest, RefreshKeepsTheSearch)
{
    Search(L"cal");
    Shortcut(L"Local", L"\\x.exe");
    Do(CMD_REFRESH);
    EXPECT_TRUE(HasRows(3));
    EXPECT_EQ(L"cal", TextOf(box));
    EXPECT_TRUE(HasMark(0));
    ExpectUsable();
}

TEST_F(StartRefreshTest, WithoutAnyShortcutItSaysSo)
{
    ASSERT_TRUE(RemoveMenu());
    Do(CMD_REFRESH);
    EXPECT_TRUE(HasRows(0));
    EXPECT_TRUE(ListSays(L"No applications detected"));
    File(L"icon.lnk", "1#x");
    Do(CMD_REFRESH);
    EXPECT_TRUE(ListSays(L"No applications detected"));
    PressKey(VK_RETURN);
    Do(CMD_START_APPLICATION);
    Do(CMD_APPLICATION_INFO);
    ExpectUsable();
}

TEST_F(StartRefreshTest, WithoutAMatchItSaysWhatWasTyped)
{
    TypeText(L"x");
    PressChord({VK_SHIFT, 'Y'});
    TypeText(L"z 1");
    ASSERT_TRUE(BoxHas(L"xYz 1")) << testing::PrintToString(TextOf(box));
    EXPECT_TRUE(HasRows(0));
    EXPECT_TRUE(ListSays(L"No matches: xYz 1"));
    PressKey(VK_RETURN);
    Do(CMD_APPLICATION_INFO);
    ExpectUsable();
    Send(box, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"&Q%s"));
    EXPECT_TRUE(ListSays(L"No matches: &Q%s"));
}
