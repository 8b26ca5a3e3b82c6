// Starting shortcuts from the launcher page, and the report on them.
// profiles: pocketpc pocketpc-vga smartphone
// device's executable: pocketpc pocketpc-vga smartphone
#include "tests/e2e/ProgramMenu.h"
#include "tests/e2e/StartScreen.h"

#include "resources/ids.h"
#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"

#include <filesystem>

using namespace rig;

class StartLaunchTest : public StartScreen
{
  protected:
    // The only match is selected then.
    void Find(const std::wstring& name) const
    {
        Do(CMD_REFRESH);
        Search(name);
        ASSERT_TRUE(HasRows(1));
    }
};

TEST_F(StartLaunchTest, TheMenuHasItsItemsInOrder)
{
    const ProgramMenu menu(136);
    EXPECT_EQ((std::vector<MenuItem>{{32801, L"Start application"},
                                     {32799, L"Application info"},
                                     {0, L""},
                                     {32793, L"Refresh"},
                                     {0, L""},
                                     {-1, L"View"},
                                     {0, L""},
                                     {-1, L"More"},
                                     {0, L""},
                                     {32773, L"Exit"}}),
              menu.Items());
}

TEST_F(StartLaunchTest, TheMenusFirstItemStartsWithTheShortcutsArguments)
{
    File(L"note.txt", "text");
    Shortcut(L"Reader", L"\\Windows\\notepad.exe " + InMenu(L"note.txt"));
    ASSERT_NO_FATAL_FAILURE(Find(L"reader"));
    Choose(1);
    EXPECT_TRUE(ComesAndGoes(L"note.txt - Notepad"));
}

TEST_F(StartLaunchTest, AShortcutToNothingStartsNothingAndSaysNothing)
{
    Shortcut(L"Gone", L"\\no\\such.exe");
    ASSERT_NO_FATAL_FAILURE(Find(L"gone"));
    PressKey(VK_RETURN);
    Do(CMD_START_APPLICATION);
    ExpectUsable();
    EXPECT_FALSE(program->Notice());
    EXPECT_FALSE(FindTopWindow({.className = L"#32770"}));
}

TEST_F(StartLaunchTest, TheReportShowsTheShortcutsText)
{
    const std::wstring path = Shortcut(L"Reader", L"\"\\Windows\\a b.exe\" -x");
    ASSERT_NO_FATAL_FAILURE(Find(L"reader"));
    EXPECT_EQ(L"Name: Reader\r\nExecuteable: " + path +
                  L"\r\nTarget: \"\\Windows\\a b.exe\" -x\r\n\r\nLNK file contents:\r\n"
                  L"21#\"\\Windows\\a b.exe\" -x",
              ReportBy(CMD_APPLICATION_INFO));
    ExpectUsable();
}

TEST_F(StartLaunchTest, TheReportOnAMissingShortcutEndsWithItsTarget)
{
    const std::wstring path = Shortcut(L"Reader", L"\\Windows\\a.exe");
    ASSERT_NO_FATAL_FAILURE(Find(L"reader"));
    std::filesystem::remove(path);
    EXPECT_EQ(L"Name: Reader\r\nExecuteable: " + path + L"\r\nTarget: \\Windows\\a.exe",
              ReportBy(CMD_APPLICATION_INFO));
    PressKey(VK_RETURN);
    ExpectUsable();
}

TEST_F(StartLaunchTest, TheReportOnAnEmptyShortcutHasNoContents)
{
    const std::wstring path = File(L"Reader.lnk", "");
    ASSERT_NO_FATAL_FAILURE(Find(L"reader"));
    EXPECT_EQ(L"Name: Reader\r\nExecuteable: " + path + L"\r\nTarget: \r\n\r\nLNK file contents:\r\n",
              ReportBy(CMD_APPLICATION_INFO));
    ExpectUsable();
}
