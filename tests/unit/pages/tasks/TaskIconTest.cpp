// The icon rules of the running applications.
#include "pages/tasks/TaskIcon.h"
#include "tests/unit/pages/tasks/TestHost.h"

#include <gtest/gtest.h>

// Known icons 100 to 107, so that each slot shows.
static void InstallAll(TestHost& host)
{
    for (int slot = 0; slot < 8; slot++) {
        host.SetKnownIcon(static_cast<uint32_t>(slot), 100 + slot);
    }
}

static const struct
{
    const wchar_t* className;
    uint32_t slot;
} known[] = {{L"Calendar", 1},      {L"MSContactsUI", 0}, {L"Tasks Application", 2},
             {L"Notes.MainWnd", 7}, {L"PICTURESAPP", 4},  {L"MSINTERNET_SHARING", 6}};

TEST(TaskIconTest, AGenericIconIsReplacedByTheKnownApplicationsOfItsClass)
{
    TestHost host;
    InstallAll(host);
    for (const auto& each : known) {
        const STaskIcon icon = TaskIconForClass(2, each.className, host.programs);
        EXPECT_EQ(icon.index, 100 + static_cast<int>(each.slot)) << each.className;
        EXPECT_FALSE(icon.final) << each.className;
    }
}

TEST(TaskIconTest, ClassesAreComparedWithoutCase)
{
    TestHost host;
    InstallAll(host);
    EXPECT_EQ(TaskIconForClass(2, L"cALENDAR", host.programs).index, 101);
    EXPECT_EQ(TaskIconForClass(2, L"mscontactsui", host.programs).index, 100);
    EXPECT_EQ(TaskIconForClass(2, L"TASKS APPLICATION", host.programs).index, 102);
    EXPECT_EQ(TaskIconForClass(2, L"notes.mainwnd", host.programs).index, 107);
    EXPECT_EQ(TaskIconForClass(2, L"PicturesApp", host.programs).index, 104);
    EXPECT_EQ(TaskIconForClass(2, L"MSInternet_Sharing", host.programs).index, 106);
    EXPECT_EQ(TaskIconForClass(2, L"EXPLORE", host.programs).index, 7);
    EXPECT_EQ(TaskIconForClass(2, L"msstart", host.programs).index, 7);
    EXPECT_EQ(TaskIconForClass(2, L"DESKTOPEXPLORERWINDOW", host.programs).index, 8);
}

TEST(TaskIconTest, TheShellsWindowsHaveFixedIconsAndAreDone)
{
    TestHost host;
    InstallAll(host);
    for (const wchar_t* className : {L"Explore", L"MSStart"}) {
        const STaskIcon icon = TaskIconForClass(2, className, host.programs);
        EXPECT_EQ(icon.index, 7) << className;
        EXPECT_TRUE(icon.final) << className;
    }
    const STaskIcon home = TaskIconForClass(2, L"DesktopExplorerWindow", host.programs);
    EXPECT_EQ(home.index, 8);
    EXPECT_FALSE(home.final);
}

TEST(TaskIconTest, AnyOtherClassKeepsTheGenericIcon)
{
    TestHost host;
    InstallAll(host);
    for (const wchar_t* className :
         {L"", L"Calendar ", L"Calenda", L"TasksApplication", L"Notes", L"Explorer"}) {
        EXPECT_EQ(TaskIconForClass(2, className, host.programs).index, 2) << className;
        EXPECT_FALSE(TaskIconForClass(2, className, host.programs).final) << className;
    }
}

TEST(TaskIconTest, AnyOtherIconIsLeftAloneWhateverTheClass)
{
    TestHost host;
    InstallAll(host);
    for (const int index : {-1, 0, 1, 3, 7, 8, 1000}) {
        for (const wchar_t* className :
             {L"Calendar", L"Explore", L"MSStart", L"DesktopExplorerWindow", L"Word"}) {
            EXPECT_EQ(TaskIconForClass(index, className, host.programs).index, index) << className;
            EXPECT_FALSE(TaskIconForClass(index, className, host.programs).final) << className;
        }
    }
}

TEST(TaskIconTest, AKnownApplicationThatIsNotInstalledGivesNone)
{
    TestHost host;
    EXPECT_EQ(TaskIconForClass(2, L"Calendar", host.programs).index, -1);
}

TEST(TaskIconTest, NoIconBecomesTheGenericOne)
{
    TestHost host;
    InstallAll(host);
    EXPECT_EQ(TaskIconForPath(-1, L"\\Windows\\pword.exe", host.programs), 2);
    EXPECT_EQ(TaskIconForPath(2, L"\\Windows\\pword.exe", host.programs), 2);
}

TEST(TaskIconTest, ThePhoneProgramHasThePhonesIcon)
{
    TestHost host;
    InstallAll(host);
    EXPECT_EQ(TaskIconForPath(2, L"\\Windows\\cprog.exe", host.programs), 105);
    EXPECT_EQ(TaskIconForPath(-1, L"\\Windows\\cprog.exe", host.programs), 105);
    EXPECT_EQ(TaskIconForPath(2, L"cprog.exe", host.programs), 105);
    EXPECT_EQ(TaskIconForPath(2, L"\\my cprog.exe.old\\x", host.programs), 105);
}

TEST(TaskIconTest, ThePhoneProgramIsRecognisedByItsExactLetters)
{
    TestHost host;
    InstallAll(host);
    for (const wchar_t* path :
         {L"\\Windows\\Cprog.exe", L"\\Windows\\CPROG.EXE", L"\\Windows\\cprog.ex", L""}) {
        EXPECT_EQ(TaskIconForPath(2, path, host.programs), 2) << path;
    }
}

TEST(TaskIconTest, OnlyAGenericIconIsReplacedByThePhones)
{
    TestHost host;
    InstallAll(host);
    for (const int index : {0, 1, 3, 7, 8, 101}) {
        EXPECT_EQ(TaskIconForPath(index, L"\\Windows\\cprog.exe", host.programs), index);
    }
}

TEST(TaskIconTest, WithoutAPhoneShortcutThePhoneProgramIsGeneric)
{
    TestHost host;
    EXPECT_EQ(TaskIconForPath(2, L"\\Windows\\cprog.exe", host.programs), 2);
    EXPECT_EQ(TaskIconForPath(-1, L"\\Windows\\cprog.exe", host.programs), 2);
}
