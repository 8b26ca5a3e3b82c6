// The tree of the windows of a task's process.
// device's executable: pocketpc pocketpc-vga
#include "resources/ids.h"
#include "tests/e2e/ScreenText.h"
#include "tests/e2e/TasksScreen.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"

#include <algorithm>

using namespace rig;

namespace {

// An item as it must be.
struct Line
{
    int depth;
    std::wstring text;
    HWND window; // null for the all-ones data
    bool operator==(const Line&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Line& line)
{
    return stream << line.depth << " " << testing::PrintToString(line.text) << " " << line.window;
}

} // namespace

static std::vector<Line> LinesOf(const std::vector<TreeItem>& items)
{
    std::vector<Line> lines;
    for (const TreeItem& item : items) {
        lines.push_back(
            {item.depth, item.text, item.data == -1 ? nullptr : reinterpret_cast<HWND>(item.data)});
    }
    return lines;
}

class WindowsListE2eTest : public TasksScreen
{
  protected:
    const Actor actor;
    HWND dialog = nullptr;
    HWND tree = nullptr;

    // The list of the task in the second row.
    void Open()
    {
        Front();
        Select(1);
        program->Command(commandWindowsList);
        dialog = program->WaitForDialog();
        tree = FindDescendant(dialog, L"SysTreeView32", IDC_WINDOWS_TREE);
        ASSERT_TRUE(WaitFor([&] { return FocusOf(dialog) == tree; }));
    }

    // The lines of the actor's windows; Windows adds hidden ones of its own to a process, which are left out.
    std::vector<Line> OwnLines() const
    {
        std::vector<Line> lines;
        for (const Line& line : LinesOf(TreeItems(tree))) {
            if (!line.window || ClassOf(line.window).starts_with(L"Qv")) {
                lines.push_back(line);
            }
        }
        return lines;
    }

    HTREEITEM ItemOf(HWND window) const
    {
        for (const TreeItem& item : TreeItems(tree)) {
            if (item.data == reinterpret_cast<LPARAM>(window)) {
                return item.handle;
            }
        }
        return nullptr;
    }

    HWND SelectedWindow() const
    {
        for (const TreeItem& item : TreeItems(tree)) {
            if (item.selected) {
                return reinterpret_cast<HWND>(item.data);
            }
        }
        return nullptr;
    }

    void SelectItem(HTREEITEM item) const
    {
        Send(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
    }

    HWND WaitForInformation() const
    {
        return WaitFor([&] {
            const HWND shown = program->Dialog();
            return shown != dialog && FindDescendant(shown, L"Edit", IDC_INFORMATION_TEXT) ? shown : nullptr;
        });
    }
};

TEST_F(WindowsListE2eTest, TheRootIsTheFileNameAndExpanded)
{
    ASSERT_TRUE(actor.Make(Task(L"A")));
    Open();
    const auto items = TreeItems(tree);
    ASSERT_FALSE(items.empty());
    EXPECT_EQ(L"actor.exe", items[0].text);
    EXPECT_EQ(-1, items[0].data);
    EXPECT_EQ(0, items[0].depth);
    EXPECT_TRUE(items[0].expanded);
    EXPECT_EQ(0, std::count_if(items.begin() + 1, items.end(),
                               [](const TreeItem& item) { return item.depth == 0; }));
    EXPECT_TRUE(CloseDialog(dialog));
}

TEST_F(WindowsListE2eTest, EveryTopLevelWindowOfTheProcessIsListedInItsOrder)
{
    const Actor other;
    const HWND a = actor.Make({.className = L"QvA", .title = L"A"});
    const HWND hidden = actor.Make({.className = L"QvHidden", .title = L"Hidden", .style = WS_POPUP});
    const HWND owned = actor.Make({.className = L"QvOwned", .title = L"", .owner = a});
    ASSERT_TRUE(other.Make({.className = L"QvOther", .title = L"Other"}));
    FrontBefore({owned, a});
    Open();

    std::vector<Line> expected = {{0, L"actor.exe", nullptr}};
    for (HWND window : TopWindows()) {
        if (ProcessOf(window) == actor.Process()) {
            expected.push_back({1, L"\"" + TextOf(window) + L"\" - " + ClassOf(window), window});
        }
    }
    EXPECT_EQ(expected, LinesOf(TreeItems(tree)));
    // What the comparison would not notice if the system told both the same untruth.
    const auto lines = OwnLines();
    for (const Line& line : {Line{1, L"\"A\" - QvA", a}, Line{1, L"\"Hidden\" - QvHidden", hidden},
                             Line{1, L"\"\" - QvOwned", owned}}) {
        EXPECT_EQ(1, std::count(lines.begin(), lines.end(), line)) << line;
    }
    EXPECT_EQ(4u, lines.size());
    EXPECT_TRUE(CloseDialog(dialog));
}

TEST_F(WindowsListE2eTest, ChildWindowsAreBelowTheirParentsInTheirOrder)
{
    const HWND top = actor.Make({.className = L"QvTop", .title = L"Top"});
    const auto child = [&](const std::wstring& title, HWND parent, DWORD visible) {
        return actor.Make({.className = L"QvChild",
                           .title = title,
                           .style = WS_CHILD | visible,
                           .owner = parent,
                           .place = {0, 0, 20, 20}});
    };
    const HWND first = child(L"First", top, WS_VISIBLE);
    const HWND second = child(L"Second", top, 0);
    const HWND inner = child(L"Inner", first, 0);
    const HWND innermost = child(L"", inner, WS_VISIBLE);
    ASSERT_EQ(first, GetWindow(top, GW_CHILD));
    Open();
    EXPECT_EQ((std::vector<Line>{{0, L"actor.exe", nullptr},
                                 {1, L"\"Top\" - QvTop", top},
                                 {2, L"\"First\" - QvChild", first},
                                 {3, L"\"Inner\" - QvChild", inner},
                                 {4, L"\"\" - QvChild", innermost},
                                 {2, L"\"Second\" - QvChild", second}}),
              OwnLines());
    EXPECT_TRUE(CloseDialog(dialog));
}

TEST_F(WindowsListE2eTest, TheTasksWindowIsSelected)
{
    const HWND a = actor.Make(Task(L"A"));
    const HWND b = actor.Make(Task(L"B"));
    for (const auto& order : {std::vector{a, b}, std::vector{b, a}}) {
        FrontBefore(order);
        Open();
        EXPECT_EQ(order[0], SelectedWindow());
        EXPECT_TRUE(CloseDialog(dialog));
    }
}

TEST_F(WindowsListE2eTest, AHiddenTopOwnerIsSelectedToo)
{
    const HWND owner = actor.Make({.title = L"Owner", .style = WS_POPUP});
    ASSERT_TRUE(actor.Make({.title = L"Window", .owner = owner}));
    Open();
    EXPECT_EQ(owner, SelectedWindow());
    EXPECT_TRUE(CloseDialog(dialog));
}

TEST_F(WindowsListE2eTest, LongAndUnusualTitlesAreListedWithTheirClass)
{
    const std::wstring className = L"Qv" + std::wstring(253, L'c');
    for (const std::wstring& title :
         {std::wstring(259, L't'), std::wstring(260, L't'), std::wstring(299, L't'),
          std::wstring(L"100%s \"quoted\" & \x0416\x4e2d \xd83d\xde00")}) {
        const HWND window = actor.Make({.className = className, .title = title});
        Open();
        const auto lines = OwnLines();
        ASSERT_EQ(2u, lines.size());
        EXPECT_EQ((Line{1, L"\"" + title.substr(0, 259) + L"\" - " + className, window}), lines[1]);
        EXPECT_TRUE(CloseDialog(dialog));
        actor.Vanish(window);
    }
}

TEST_F(WindowsListE2eTest, TheProgramCanListItsOwnWindows)
{
    Front();
    Select(0);
    program->Command(commandWindowsList);
    dialog = program->WaitForDialog();
    tree = FindDescendant(dialog, L"SysTreeView32", IDC_WINDOWS_TREE);
    ASSERT_TRUE(WaitFor([&] { return FocusOf(dialog) == tree; }));
    const auto lines = LinesOf(TreeItems(tree));
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(L"Quorvane.exe", lines[0].text);
    const Line main = {1, L"\"Quorvane\" - QuorvaneApp", Main()};
    EXPECT_EQ(1, std::count(lines.begin(), lines.end(), main));
    EXPECT_EQ(Main(), SelectedWindow());
    // Its pages are child windows, with their lists.
    const Line listLine = {3, L"\"\" - SysListView32", list};
    EXPECT_EQ(1, std::count(lines.begin(), lines.end(), listLine));
    EXPECT_TRUE(CloseDialog(dialog));
}

TEST_F(WindowsListE2eTest, TheMenuShowsTheReportOnTheSelectedItemAndTheFocusComesBack)
{
    const HWND a = actor.Make(Task(L"A"));
    const HWND child = actor.Make({.className = L"QvChild",
                                   .title = L"Child",
                                   .style = WS_CHILD | WS_VISIBLE,
                                   .owner = a,
                                   .place = {0, 0, 20, 20}});
    Open();
    SelectItem(ItemOf(child));
    PressKey(VK_F2);
    ASSERT_TRUE(WaitFor([] { return OpenMenu(); }));
    PressKey(VK_DOWN);
    PressKey(VK_RETURN);
    const HWND info = WaitForInformation();
    const std::wstring report = TextOf(FindDescendant(info, L"Edit", IDC_INFORMATION_TEXT));
    EXPECT_EQ(child, ReportedWindow(report));
    EXPECT_NE(std::wstring::npos, report.find(L"\r\n\r\nStyles: \r\n - WS_CHILD\r\n - WS_VISIBLE"));
    ASSERT_TRUE(WaitFor([=] { return GetForegroundWindow() == info; }));
    PressKey(VK_F1);
    EXPECT_TRUE(WaitFor([=] { return !IsWindow(info); }));
    EXPECT_TRUE(WaitFor([&] { return FocusOf(dialog) == tree; }));
    // The arrows move in the tree again.
    PressKey(VK_HOME);
    EXPECT_TRUE(WaitFor([&] { return TreeItems(tree)[0].selected; }));
    PressKey(VK_F1);
    EXPECT_TRUE(WaitFor([&] { return !IsWindow(dialog); }));
}

TEST_F(WindowsListE2eTest, TheRootHasNoReport)
{
    ASSERT_TRUE(actor.Make(Task(L"A")));
    Open();
    SelectItem(TreeItems(tree)[0].handle);
    Send(dialog, WM_COMMAND, commandWindowInfo);
    EXPECT_EQ(dialog, program->Dialog());
    EXPECT_FALSE(program->Notice());
    EXPECT_TRUE(CloseDialog(dialog));
}

TEST_F(WindowsListE2eTest, AnItemWhoseWindowHasGoneGivesANotice)
{
    const HWND a = actor.Make(Task(L"A"));
    const HWND b = actor.Make(Task(L"B"));
    FrontBefore({a, b});
    Open();
    SelectItem(ItemOf(b));
    actor.Vanish(b);
    EXPECT_TRUE(ItemOf(b)) << "the list is a snapshot";
    PostMessageW(dialog, WM_COMMAND, commandWindowInfo, 0);
    const HWND notice = WaitForNotice();
    ASSERT_TRUE(notice);
    EXPECT_TRUE(NoticeSays(Main(), notice, L"Window is no longer exists."));
    EXPECT_EQ(dialog, program->Dialog());
    EXPECT_EQ(tree, FocusOf(dialog));
    EXPECT_TRUE(CloseDialog(dialog));
}

TEST_F(WindowsListE2eTest, ATaskThatHasGoneGivesANoticeAndNoDialog)
{
    const HWND a = actor.Make(Task(L"A"));
    FrontWithoutRefreshes();
    Select(1);
    actor.Vanish(a);
    ASSERT_EQ(3, ListCount(list)) << "refreshed too early";
    program->Command(commandWindowsList);
    const HWND notice = WaitForNotice();
    ASSERT_TRUE(notice);
    EXPECT_TRUE(NoticeSays(Main(), notice, L"Window is no longer exists."));
    EXPECT_FALSE(program->Dialog());
}
