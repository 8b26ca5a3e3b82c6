// The end-to-end tests' own tools: what they say about windows, keys and pixels of other processes is true.
// profiles: pocketpc pocketpc-vga
// device's executable: never
#include "rig/Actor.h"
#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/Picture.h"
#include "rig/ProgramCopy.h"
#include "rig/WaitFor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

using namespace rig;
using std::chrono::milliseconds;

static constexpr COLORREF orange = RGB(250, 120, 10);

namespace {

// A program of Wine's with its window in front.
class WineProgram
{
    ChildProcess process;

  public:
    HWND window;

    explicit WineProgram(const std::wstring& name)
        : process(name, L"", L"C:\\"), window(WaitForTopWindow({.process = process.Id()}))
    {
        BringToFront(window);
    }
};

} // namespace

TEST(RigTest, ActorWindowsAreFoundByClassTitleAndProcess)
{
    const Actor actor;
    ASSERT_TRUE(actor.Ready());
    const HWND window = actor.Make({.className = L"Explore", .title = L"Any title"});
    ASSERT_TRUE(window);
    EXPECT_EQ(window, FindTopWindow({.className = L"Explore"}));
    EXPECT_EQ(window, FindTopWindow({.title = L"Any title", .process = actor.Process()}));
    EXPECT_EQ(nullptr, FindTopWindow({.className = L"Explore", .title = L"Another title"}));
    EXPECT_EQ(actor.Process(), ProcessOf(window));
    EXPECT_EQ(L"actor.exe", ExecutableOf(actor.Process()));
}

// The top bar shows the same title a little later, and may lie above the window.
TEST(RigTest, TheTopBarIsNotMeantByATitle)
{
    const Actor actor;
    const HWND window = actor.Make({.title = L"Shown twice"});
    ASSERT_TRUE(BringToFront(window));
    const HWND bar = FindTopWindow({.className = L"Shell_TrayWnd"});
    ASSERT_TRUE(bar);
    ASSERT_TRUE(WaitFor([&] { return TextOf(bar) == L"Shown twice"; }));
    SetWindowPos(bar, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    ASSERT_TRUE(WaitFor([&] { return TopWindows().front() == bar; }));
    EXPECT_EQ(window, FindTopWindow({.title = L"Shown twice"}));
}

// It still believes to have the front when it is to get it again.
TEST(RigTest, AWindowThatLostTheFrontWhileBusyIsShownAgain)
{
    constexpr RECT area = {20, 60, 180, 160};
    const Actor busy;
    const Actor other;
    const HWND window = busy.Make({.place = area, .colour = orange});
    const HWND pause =
        busy.Make({.place = {0, 180, 20, 200}, .closing = actor::Closing::Delay, .delay = 2000});
    const HWND before = other.Make({.place = area});
    const auto shows = [&](COLORREF colour) {
        return WaitFor([=] { return Picture::OfScreen(area).Count(colour) == 160 * 100; });
    };
    ASSERT_TRUE(window && pause && before);
    ASSERT_TRUE(Raise(window));
    ASSERT_TRUE(shows(orange));
    ASSERT_TRUE(Hang(pause));
    SetForegroundWindow(before);
    ASSERT_TRUE(shows(RGB(0, 128, 0)));
    ASSERT_FALSE(Answers(window, milliseconds(50))) << "it was to be busy all the time";
    EXPECT_TRUE(BringToFront(window));
    EXPECT_TRUE(shows(orange));
}

TEST(RigTest, ActorTakesAClassNameOfTheLongestLength)
{
    const Actor actor;
    const std::wstring longest(255, L'c');
    const HWND window = actor.Make({.className = longest});
    ASSERT_TRUE(window);
    EXPECT_EQ(longest, ClassOf(window));
    EXPECT_FALSE(actor.Make({.className = longest + L'c'}));
}

TEST(RigTest, ActorWindowsHaveTheOwnerStylesAndPlaceOrdered)
{
    const Actor actor;
    const HWND owner = actor.Make({.title = L"", .style = WS_POPUP});
    const HWND owned = actor.Make({.style = WS_POPUP | WS_VISIBLE | WS_DISABLED | WS_BORDER,
                                   .exStyle = WS_EX_TOOLWINDOW,
                                   .owner = owner,
                                   .place = {10, 140, 110, 190}});
    EXPECT_EQ(owner, GetWindow(owned, GW_OWNER));
    EXPECT_FALSE(IsWindowVisible(owner));
    EXPECT_EQ(L"", TextOf(owner));
    EXPECT_TRUE(IsWindowVisible(owned));
    EXPECT_FALSE(IsWindowEnabled(owned));
    EXPECT_TRUE(GetWindowLongW(owned, GWL_STYLE) & WS_BORDER);
    EXPECT_TRUE(GetWindowLongW(owned, GWL_EXSTYLE) & WS_EX_TOOLWINDOW);
    const RECT place = ScreenRectOf(owned);
    EXPECT_EQ(10, place.left);
    EXPECT_EQ(140, place.top);
    EXPECT_EQ(110, place.right);
    EXPECT_EQ(190, place.bottom);
}

TEST(RigTest, ActorCountsTheCloseMessagesOfAWindowThatIgnoresThem)
{
    const Actor actor;
    const HWND window = actor.Make({.closing = actor::Closing::Ignore});
    EXPECT_EQ(0, CloseCount(window));
    Send(window, WM_CLOSE);
    Send(window, WM_CLOSE);
    EXPECT_EQ(2, CloseCount(window));
    EXPECT_TRUE(IsWindow(window));
}

TEST(RigTest, ActorAsksBeforeItClosesWhenOrdered)
{
    const Actor actor;
    const HWND window = actor.Make({.closing = actor::Closing::Ask});
    PostMessageW(window, WM_CLOSE, 0, 0);
    const HWND box = WaitForTopWindow({.className = L"#32770", .process = actor.Process()});
    ASSERT_TRUE(box);
    PostMessageW(box, WM_COMMAND, IDNO, 0);
    EXPECT_TRUE(WaitFor([=] { return !IsWindow(box); }));
    EXPECT_TRUE(IsWindow(window));
}

TEST(RigTest, ActorAnswersNothingWhileItDelaysAClose)
{
    const Actor actor;
    const HWND window = actor.Make({.closing = actor::Closing::Delay, .delay = 1500});
    PostMessageW(window, WM_CLOSE, 0, 0);
    // A sent message may still overtake the posted one.
    EXPECT_TRUE(WaitFor([=] {
        DWORD_PTR answer = 0;
        return !SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, 300, &answer) && IsWindow(window);
    }));
    EXPECT_TRUE(WaitFor([=] { return !IsWindow(window); }));
}

TEST(RigTest, AVanishedWindowIsGoneWithoutAClose)
{
    const Actor actor;
    const HWND window = actor.Make({.closing = actor::Closing::Ignore});
    actor.Vanish(window);
    EXPECT_FALSE(IsWindow(window));
    EXPECT_TRUE(actor.Running());
}

TEST(RigTest, AChildProcessEndsWithItsObject)
{
    HANDLE watched = nullptr;
    {
        const ChildProcess process(ProgramFolder() + L"\\actor.exe", L"");
        ASSERT_TRUE(process.Running());
        EXPECT_FALSE(process.ExitCode());
        watched = OpenProcess(SYNCHRONIZE, FALSE, process.Id());
    }
    EXPECT_EQ(static_cast<DWORD>(WAIT_OBJECT_0), WaitForSingleObject(watched, 0));
    CloseHandle(watched);
}

TEST(RigTest, AnActorThatEndsWithItsWindowGivesItsExitCode)
{
    const Actor actor;
    const HWND window = actor.Make({.endsActor = true});
    PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_TRUE(WaitFor([&] { return !actor.Running(); }));
}

TEST(RigTest, KeysGoToTheWindowInFront)
{
    const Actor actor;
    const HWND first = actor.Make({.title = L"First"});
    const HWND second = actor.Make({.title = L"Second"});
    ASSERT_TRUE(BringToFront(first));
    PressKey(VK_DOWN, 3);
    EXPECT_TRUE(WaitFor([=] { return KeyCount(first) == 3; }));
    EXPECT_EQ(0, KeyCount(second));
    ASSERT_TRUE(BringToFront(second));
    PressKey(VK_DOWN);
    EXPECT_TRUE(WaitFor([=] { return KeyCount(second) == 1; }));
    EXPECT_EQ(3, KeyCount(first));
}

TEST(RigTest, ATapBringsTheWindowUnderItToTheFront)
{
    const Actor one;
    const Actor other;
    // Below the top bar of any profile: the handheld would move them from under it, away from the tap.
    const HWND left = one.Make({.place = {0, 60, 100, 200}});
    const HWND right = other.Make({.place = {100, 60, 200, 200}});
    ASSERT_TRUE(BringToFront(right));
    Tap(PointIn(left, 99, 139));
    EXPECT_TRUE(WaitFor([=] { return GetForegroundWindow() == left; }));
    Tap(PointIn(right, 0, 0));
    EXPECT_TRUE(WaitFor([=] { return GetForegroundWindow() == right; }));
}

TEST(RigTest, AWindowThatAppearsBelowTheStylusHearsNothingOfIt)
{
    const Actor actor;
    MoveTo({70, 130});
    const HWND window = actor.Make({.place = {20, 80, 120, 180}, .colour = orange});
    ASSERT_TRUE(BringToFront(window));
    ASSERT_TRUE(WaitFor([] { return Picture::OfScreen().Count(orange) == 100 * 100; }));
    Picture::OfSettledScreen();
    EXPECT_EQ(0, MoveCount(window));
    StylusDown({70, 130});
    MoveTo({71, 131});
    EXPECT_TRUE(WaitFor([=] { return MoveCount(window) > 0; }));
    StylusUp({71, 131});
}

TEST(RigTest, TypedTextArrives)
{
    const WineProgram notepad(L"notepad.exe");
    const HWND edit = FindDescendant(notepad.window, L"Edit");
    ASSERT_TRUE(edit);
    TypeText(L"ab 12 \x00e4!");
    EXPECT_TRUE(WaitFor([=] { return TextOf(edit) == L"ab 12 \x00e4!"; }))
        << "it arrived as " << testing::PrintToString(TextOf(edit));
}

TEST(RigTest, APictureShowsTheWindowsOfOtherProcesses)
{
    const Actor actor;
    const HWND window = actor.Make({.place = {20, 150, 80, 190}, .colour = orange});
    ASSERT_TRUE(BringToFront(window));
    EXPECT_TRUE(WaitFor([] { return Picture::OfScreen().Count(orange) == 60 * 40; }));
    const Picture screen = Picture::OfSettledScreen();
    EXPECT_EQ(GetSystemMetrics(SM_CXSCREEN), screen.Width());
    EXPECT_EQ(GetSystemMetrics(SM_CYSCREEN), screen.Height());
    EXPECT_EQ(orange, screen.At(20, 150));
    EXPECT_EQ(orange, screen.At(79, 189));
    EXPECT_NE(orange, screen.At(80, 189));
    EXPECT_NE(orange, screen.At(19, 150));
    EXPECT_EQ(CLR_INVALID, screen.At(-1, 0));
    EXPECT_EQ(10 * 5, screen.Count(orange, {20, 150, 30, 155}));
}

TEST(RigTest, AFocusSetInTheBackgroundCoversNothing)
{
    const Actor background;
    const Actor front;
    const HWND below = background.Make({.place = {0, 60, 100, 120}});
    const HWND above = front.Make({.place = {0, 60, 100, 120}, .colour = orange});
    ASSERT_TRUE(BringToFront(above));
    ASSERT_TRUE(WaitFor([] { return Picture::OfScreen().Count(orange) == 100 * 60; }));
    background.Focus(below);
    EXPECT_EQ(100 * 60, Picture::OfSettledScreen().Count(orange));
    EXPECT_EQ(above, GetForegroundWindow());
}

TEST(RigTest, APictureIsKeptAsAPngFile)
{
    wchar_t folder[MAX_PATH];
    ASSERT_TRUE(GetTempPathW(MAX_PATH, folder));
    const std::wstring path = std::wstring(folder) + L"picture.png";
    ASSERT_TRUE(Picture::OfScreen({0, 0, 30, 20}).SavePng(path));
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    unsigned char head[24] = {};
    DWORD read = 0;
    EXPECT_TRUE(ReadFile(file, head, sizeof(head), &read, nullptr));
    CloseHandle(file);
    DeleteFileW(path.c_str());
    const unsigned char expected[24] = {0x89, 'P', 'N', 'G', 13, 10, 26, 10, 0, 0, 0, 13,
                                        'I',  'H', 'D', 'R', 0,  0,  0,  30, 0, 0, 0, 20};
    EXPECT_EQ(0, memcmp(expected, head, sizeof(head)));
    EXPECT_FALSE(Picture::OfScreen({0, 0, 30, 20}).SavePng(L"C:\\no such folder\\picture.png"));
}

TEST(RigTest, TreeAndListFactsComeAcrossProcesses)
{
    const WineProgram regedit(L"regedit.exe");
    const HWND tree = FindDescendant(regedit.window, L"SysTreeView32");
    const HWND list = FindDescendant(regedit.window, L"SysListView32");
    ASSERT_TRUE(tree);
    ASSERT_TRUE(list);
    ASSERT_TRUE(WaitFor([=] { return TreeItems(tree).size() > 4; }));
    const auto items = TreeItems(tree);
    EXPECT_EQ(0, items[0].depth);
    EXPECT_TRUE(items[0].expanded);
    EXPECT_EQ(L"HKEY_CLASSES_ROOT", items[1].text);
    EXPECT_EQ(1, items[1].depth);
    EXPECT_EQ(1,
              std::count_if(items.begin(), items.end(), [](const TreeItem& item) { return item.selected; }));

    EXPECT_FALSE(ListRowOnScreen(list, 1000));
    EXPECT_EQ(-1, ListSelected(list));
    EXPECT_EQ(static_cast<int>(Send(list, LVM_GETITEMCOUNT)), ListCount(list));
    EXPECT_GT(ListRowsPerPage(list), 0);
    EXPECT_EQ(0, ListTopRow(list));
}

TEST(RigTest, AProgramCopyHasFilesOfItsOwn)
{
    std::wstring folder;
    {
        const ProgramCopy copy;
        ASSERT_TRUE(copy.Complete());
        folder = copy.Folder();
        for (const wchar_t* name :
             {L"Quorvane.exe", L"Quorvane.zrs", L"coredll.dll", L"profiles\\pocketpc.ini"}) {
            EXPECT_TRUE(std::filesystem::exists(copy.Path(name))) << std::filesystem::path(name);
        }
    }
    EXPECT_FALSE(std::filesystem::exists(folder));
}

TEST(RigTest, WaitingEndsAtTheDeadline)
{
    EXPECT_FALSE(WaitFor([] { return false; }, milliseconds(50)));
    int questions = 0;
    EXPECT_EQ(3, WaitFor([&] { return ++questions == 3 ? 3 : 0; }));
}
