// Which windows are tasks, and what their records say.
#include "pages/tasks/TaskEnumeration.h"
#include "tests/support/TestHeap.h"
#include "tests/unit/ScriptedHeaps.h"
#include "tests/unit/ScriptedIcons.h"
#include "tests/unit/ScriptedWindows.h"
#include "tests/unit/pages/tasks/TestHost.h"

#include <gtest/gtest.h>

class TaskEnumerationTest : public testing::Test
{
  protected:
    TestHost host;
    ScriptedWindows windows;
    ScriptedHeaps heaps;
    ScriptedIcons icons;
    CTaskRecords tasks{host.programs};

    HWND Add(const wchar_t* title, HWND owner = nullptr)
    {
        ScriptedWindow window;
        window.title = title;
        window.owner = owner;
        return windows.Add(window);
    }

    void Enumerate()
    {
        for (HWND window : windows.order) {
            EXPECT_TRUE(EnumTasksProc(window, reinterpret_cast<LPARAM>(&tasks)));
        }
    }

    std::vector<std::wstring> Names()
    {
        std::vector<std::wstring> names;
        for (uint32_t i = 0; i < tasks.Count(); i++) {
            names.emplace_back(tasks.At(i)->name.Buffer());
        }
        return names;
    }

    // The one record of a window of this class whose program has this icon.
    STaskInfo& TaskOf(const wchar_t* className, int shellIcon, const wchar_t* path = L"\\Windows\\shell.exe")
    {
        tasks.Clear();
        ScriptedWindow window;
        window.title = L"Title";
        window.className = className;
        window.processId = 42;
        windows.paths[42] = path;
        icons.indexes[path] = shellIcon;
        heaps.processes[42] = {{{1000, 24}}};
        HWND handle = windows.Add(window);
        EXPECT_TRUE(EnumTasksProc(handle, reinterpret_cast<LPARAM>(&tasks)));
        EXPECT_EQ(tasks.Count(), 1u);
        return *tasks.At(0);
    }
};

using Texts = std::vector<std::wstring>;

TEST_F(TaskEnumerationTest, GoesOnForEveryWindowAndEndsForNone)
{
    EXPECT_TRUE(EnumTasksProc(Add(L"Word"), reinterpret_cast<LPARAM>(&tasks)));
    EXPECT_TRUE(EnumTasksProc(reinterpret_cast<HWND>(0x123456), reinterpret_cast<LPARAM>(&tasks)));
    EXPECT_FALSE(EnumTasksProc(nullptr, reinterpret_cast<LPARAM>(&tasks)));
    EXPECT_EQ(tasks.Count(), 1u);
}

TEST_F(TaskEnumerationTest, TasksKeepTheOrderOfTheWindows)
{
    Add(L"c");
    Add(L"a");
    Add(L"b");
    Enumerate();
    EXPECT_EQ(Names(), (Texts{L"c", L"a", L"b"}));
}

TEST_F(TaskEnumerationTest, WindowsThatAreNoApplicationsAreNotListed)
{
    HWND good = Add(L"owner");
    ScriptedWindow window;
    window.title = L"window";
    window.owner = good;
    windows.windows[good].enabled = false;
    window.exStyle = 0x08000000;
    windows.Add(window);
    window.exStyle = 0x80;
    windows.Add(window);
    window.exStyle = 0;
    window.enabled = false;
    windows.Add(window);
    window.enabled = true;
    window.visible = false;
    windows.Add(window);
    Enumerate();
    EXPECT_EQ(tasks.Count(), 0u);
}

TEST_F(TaskEnumerationTest, TheWindowsOfOneTopOwnerAreOneTask)
{
    HWND top = Add(L"Word");
    HWND dialog = Add(L"Open", top);
    Add(L"Find", top);
    Add(L"Help", dialog);
    Add(L"Excel");
    Enumerate();
    EXPECT_EQ(Names(), (Texts{L"Word", L"Excel"}));
    EXPECT_EQ(tasks.At(0)->window, top);
}

TEST_F(TaskEnumerationTest, AnOwnedWindowInFrontStandsForItsTopOwner)
{
    HWND top = Add(L"Word");
    HWND middle = Add(L"Options", top);
    HWND popup = Add(L"Colours", middle);
    windows.order = {popup, middle, top};
    Enumerate();
    EXPECT_EQ(Names(), Texts{L"Word"});
    EXPECT_EQ(tasks.At(0)->window, top);
}

TEST_F(TaskEnumerationTest, AHiddenTopOwnerIsTheTaskUnderTheWindowsName)
{
    HWND top = Add(L"owner");
    windows.windows[top].visible = false;
    Add(L"window", top);
    Enumerate();
    EXPECT_EQ(Names(), Texts{L"window"});
    EXPECT_EQ(tasks.At(0)->window, top);
}

TEST_F(TaskEnumerationTest, AnUntitledWindowIsNotListedOnAPocketPC)
{
    host.SetPlatform(Platform::PocketPC);
    HWND home = Add(L"");
    windows.windows[home].className = L"DesktopExplorerWindow";
    Add(L"");
    Enumerate();
    EXPECT_EQ(tasks.Count(), 0u);
}

TEST_F(TaskEnumerationTest, TheUntitledHomeScreenIsNotListedOnAnUnknownPlatform)
{
    host.SetPlatform(Platform::Unknown);
    windows.windows[Add(L"")].className = L"DesktopExplorerWindow";
    Enumerate();
    EXPECT_EQ(tasks.Count(), 0u);
}

TEST_F(TaskEnumerationTest, TheSmartphonesUntitledHomeScreenIsHome)
{
    host.SetPlatform(Platform::Smartphone);
    HWND home = Add(L"");
    windows.windows[home].className = L"desktopEXPLORERwindow";
    windows.windows[home].processId = 42;
    windows.paths[42] = L"\\Windows\\home.exe";
    icons.indexes[L"\\Windows\\home.exe"] = 2;
    windows.windows[Add(L"")].className = L"Explore";
    Enumerate();
    EXPECT_EQ(Names(), Texts{L"Home"});
    EXPECT_EQ(tasks.At(0)->iconIndex, 8);
}

TEST_F(TaskEnumerationTest, TheHomeScreensClassIsThatOfTheTopOwner)
{
    host.SetPlatform(Platform::Smartphone);
    HWND home = Add(L"");
    windows.windows[home].className = L"DesktopExplorerWindow";
    windows.windows[home].visible = false;
    HWND other = Add(L"", home);
    EXPECT_TRUE(EnumTasksProc(other, reinterpret_cast<LPARAM>(&tasks)));
    EXPECT_EQ(Names(), Texts{L"Home"});
    EXPECT_EQ(tasks.At(0)->window, home);
}

TEST_F(TaskEnumerationTest, ATitledHomeScreenKeepsItsTitle)
{
    for (const Platform platform : {Platform::PocketPC, Platform::Smartphone}) {
        host.SetPlatform(platform);
        const STaskInfo& task = TaskOf(L"DesktopExplorerWindow", 2);
        EXPECT_STREQ(task.name.Buffer(), L"Title");
        EXPECT_EQ(task.iconIndex, 8);
    }
}

TEST_F(TaskEnumerationTest, NamesHaveAtMost259Characters)
{
    for (const size_t length : {1u, 255u, 259u, 260u, 261u, 5000u}) {
        Add((std::wstring(length - 1, L'"') + L"%").c_str());
    }
    Enumerate();
    ASSERT_EQ(tasks.Count(), 6u);
    const size_t kept[] = {1, 255, 259, 259, 259, 259};
    for (uint32_t i = 0; i < 6; i++) {
        EXPECT_EQ(tasks.At(i)->name.Length(), kept[i]);
    }
}

TEST_F(TaskEnumerationTest, ARecordDescribesTheTopOwnersProcess)
{
    HWND top = Add(L"Word");
    windows.windows[top].processId = 0x7FFFFFF2;
    windows.windows[Add(L"Open", top)].processId = 99;
    windows.order = {windows.order[1], windows.order[0]};
    windows.paths[0x7FFFFFF2] = L"\\Windows\\pword.exe";
    icons.indexes[L"\\Windows\\pword.exe"] = 12;
    heaps.processes[0x7FFFFFF2] = {{{0xC0000000}}, {{0x80000000}}};
    Enumerate();
    ASSERT_EQ(tasks.Count(), 1u);
    EXPECT_EQ(tasks.At(0)->iconIndex, 12);
    EXPECT_EQ(tasks.At(0)->heapBytes, 0x40000000u) << "modulo 4 GiB";
    EXPECT_EQ(tasks.At(0)->icon, nullptr);
    EXPECT_EQ(windows.askedPaths, std::vector<DWORD>{0x7FFFFFF2});
    EXPECT_EQ(heaps.snapshots, std::vector<DWORD>{0x7FFFFFF2});
    EXPECT_EQ(icons.askedFlags, std::vector<UINT>{0x4001});
}

TEST_F(TaskEnumerationTest, AProcessIsAskedOnceForAllItsTasks)
{
    const DWORD processes[] = {42, 43, 42, 42, 43};
    for (const DWORD process : processes) {
        windows.windows[Add((L"Task of " + std::to_wstring(process)).c_str())].processId = process;
    }
    windows.paths = {{42, L"\\Windows\\pword.exe"}, {43, L"\\Windows\\pxl.exe"}};
    icons.indexes = {{L"\\Windows\\pword.exe", 12}, {L"\\Windows\\pxl.exe", 13}};
    heaps.processes = {{42, {{{1000}}}}, {43, {{{2000}}}}};
    Enumerate();
    EXPECT_EQ(windows.askedPaths, (std::vector<DWORD>{42, 43}));
    EXPECT_EQ(icons.askedPaths, (std::vector<std::wstring>{L"\\Windows\\pword.exe", L"\\Windows\\pxl.exe"}));
    EXPECT_EQ(heaps.snapshots, (std::vector<DWORD>{42, 43}));
    ASSERT_EQ(tasks.Count(), 5u);
    for (uint32_t i = 0; i < 5; i++) {
        EXPECT_EQ(tasks.At(i)->iconIndex, processes[i] == 42 ? 12 : 13) << i;
        EXPECT_EQ(tasks.At(i)->heapBytes, processes[i] == 42 ? 1000u : 2000u) << i;
    }
}

TEST_F(TaskEnumerationTest, ARefreshAsksAgain)
{
    windows.windows[Add(L"Word")].processId = 42;
    windows.paths[42] = L"\\Windows\\pword.exe";
    icons.indexes = {{L"\\Windows\\pword.exe", 12}, {L"\\Windows\\pxl.exe", 13}};
    heaps.processes[42] = {{{1000}}};
    Enumerate();
    EXPECT_EQ(tasks.At(0)->heapBytes, 1000u);
    // The process has ended meanwhile, and another has its id.
    windows.paths[42] = L"\\Windows\\pxl.exe";
    heaps.processes[42] = {{{3000}}};
    tasks.Clear();
    Enumerate();
    EXPECT_EQ(tasks.At(0)->heapBytes, 3000u);
    EXPECT_EQ(tasks.At(0)->iconIndex, 13);
}

TEST_F(TaskEnumerationTest, AFigurelessTaskOfTheShellLeavesItsProcessesOthersTheirs)
{
    for (const wchar_t* className : {L"Explore", L"Dialer", L"MSStart", L"Worker"}) {
        HWND window = Add(className);
        windows.windows[window].className = className;
        windows.windows[window].processId = 42;
    }
    windows.paths[42] = L"\\Windows\\shell32.exe";
    icons.indexes[L"\\Windows\\shell32.exe"] = 2;
    heaps.processes[42] = {{{1000}}};
    Enumerate();
    ASSERT_EQ(tasks.Count(), 4u);
    for (uint32_t i = 0; i < 4; i++) {
        EXPECT_EQ(tasks.At(i)->heapBytes, i % 2 == 0 ? 0u : 1000u) << i;
        EXPECT_EQ(tasks.At(i)->iconIndex, i % 2 == 0 ? 7 : 2) << i;
    }
    EXPECT_EQ(heaps.snapshots, std::vector<DWORD>{42});
}

TEST_F(TaskEnumerationTest, AProcessWhoseHeapsCannotBeWalkedHasNone)
{
    STaskInfo& task = TaskOf(L"Word", 5);
    EXPECT_EQ(task.heapBytes, 1024u);
    heaps.processes.clear();
    tasks.Clear();
    EnumTasksProc(windows.order[0], reinterpret_cast<LPARAM>(&tasks));
    EXPECT_EQ(tasks.At(0)->heapBytes, 0u);
}

TEST_F(TaskEnumerationTest, AProgramWithoutAnIconGetsTheGenericOne)
{
    windows.windows[Add(L"unknown to the shell")].processId = 1;
    windows.paths[1] = L"\\nothing.exe";
    windows.windows[Add(L"cannot be asked for its path")].processId = 2;
    icons.indexes[L""] = 30; // the desktop's: never to be taken
    Enumerate();
    EXPECT_EQ(tasks.At(0)->iconIndex, 2);
    EXPECT_EQ(tasks.At(1)->iconIndex, 2);
    EXPECT_EQ(icons.askedPaths, std::vector<std::wstring>{L"\\nothing.exe"});
}

TEST_F(TaskEnumerationTest, AHostedApplicationHasItsStartMenuIcon)
{
    host.SetKnownIcon(1, 31);
    EXPECT_EQ(TaskOf(L"Calendar", 2).iconIndex, 31);
    host.SetKnownIcon(1, -1);
    EXPECT_EQ(TaskOf(L"Calendar", 2).iconIndex, 2);
    host.SetKnownIcon(5, 35);
    EXPECT_EQ(TaskOf(L"Calendar", 2, L"\\Windows\\cprog.exe").iconIndex, 35)
        << "none, so the program decides";
    EXPECT_EQ(TaskOf(L"Dialer", 2, L"\\Windows\\cprog.exe").iconIndex, 35);
    EXPECT_EQ(TaskOf(L"Dialer", -1, L"\\Windows\\cprog.exe").iconIndex, 35);
    EXPECT_EQ(TaskOf(L"Dialer", 3, L"\\Windows\\cprog.exe").iconIndex, 3);
}

TEST_F(TaskEnumerationTest, TheClassIsThatOfTheTopOwner)
{
    host.SetKnownIcon(1, 31);
    HWND top = Add(L"Calendar");
    windows.windows[top].className = L"Dialog";
    windows.windows[top].processId = 42;
    windows.windows[Add(L"New", top)].className = L"Calendar";
    windows.order = {windows.order[1]};
    windows.paths[42] = L"\\shell.exe";
    icons.indexes[L"\\shell.exe"] = 2;
    Enumerate();
    EXPECT_EQ(tasks.At(0)->iconIndex, 2);
}

TEST_F(TaskEnumerationTest, TheShellIsListedWithoutAHeapFigure)
{
    for (const wchar_t* className : {L"Explore", L"MSStart"}) {
        heaps.snapshots.clear();
        host.SetKnownIcon(5, 35);
        const STaskInfo& task = TaskOf(className, 2, L"\\Windows\\cprog.exe");
        EXPECT_EQ(task.iconIndex, 7);
        EXPECT_EQ(task.heapBytes, 0u);
        EXPECT_EQ(task.icon, nullptr);
        EXPECT_TRUE(heaps.snapshots.empty());
        EXPECT_EQ(TaskOf(className, 4).heapBytes, 1024u) << "with an icon of its own it is any program";
    }
}

TEST_F(TaskEnumerationTest, TheProgramsOwnWindowIsListed)
{
    host.SetMainWindow(Add(L"Quorvane"));
    Enumerate();
    EXPECT_EQ(Names(), Texts{L"Quorvane"});
}

TEST_F(TaskEnumerationTest, WindowsThatVanishAtAnyMomentDoNoHarm)
{
    const auto all = windows.windows;
    for (int questions = 0; questions < 60; questions++) {
        tasks.Clear();
        HWND top = Add(L"Word");
        Add(L"Open", top);
        windows.lifeInQuestions = questions;
        Enumerate();
        for (uint32_t i = 0; i < tasks.Count(); i++) {
            EXPECT_FALSE(tasks.At(i)->name.IsEmpty());
            EXPECT_NE(tasks.At(i)->iconIndex, -1);
        }
        windows.lifeInQuestions = -1;
        windows.windows = all;
        windows.order.clear();
    }
}

TEST_F(TaskEnumerationTest, ARecordIsAllThatIsAllocated)
{
    for (int i = 0; i < 8; i++) {
        Add(L"");
    }
    for (int i = 0; i < 3; i++) {
        Add(L"Word", i ? windows.order.back() : nullptr);
    }
    heaps.snapshots.reserve(100); // the script's own blocks are not counted
    heaps.snapshotFlags.reserve(100);
    windows.askedPaths.reserve(100);
    windows.askedPathSizes.reserve(100);
    const size_t before = LiveBlocks();
    for (HWND window : windows.order) {
        EnumTasksProc(window, reinterpret_cast<LPARAM>(&tasks));
    }
    const size_t during = LiveBlocks();
    tasks.Clear();
    EXPECT_GT(during, before);
    EXPECT_EQ(LiveBlocks(), before);
}
