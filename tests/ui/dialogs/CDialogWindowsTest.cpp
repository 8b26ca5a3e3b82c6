// The tree of a process's windows.
#include "dialogs/CDialogWindows.h"
#include "resources/ids.h"
#include "tests/ui/ProgramTest.h"

#include <algorithm>

class CDialogWindowsTest : public ProgramTest
{
  protected:
    SPY(GetWindowTextW) getText;
    SPY(GetClassNameW) getClass;

    struct Opened
    {
        ProgramApp& app;
        HWND dialog;
        HWND tree;
    };

    // Opens the list of this process's windows; the step runs inside the dialog's loop and must end it.
    int Open(HWND preselected, const std::function<void(Opened&)>& step,
             DWORD process = GetCurrentProcessId(), const wchar_t* caption = L"tests.exe")
    {
        int result = -99;
        InProgram([&](ProgramApp& app) {
            app.Later([&] {
                ASSERT_EQ(app.dialogs->Count(), 1u);
                HWND dialog = app.dialogs->At(0)->Window();
                Opened opened = {app, dialog, GetDlgItem(dialog, IDC_WINDOWS_TREE)};
                step(opened);
            });
            CDialogWindows dialog(process, caption, preselected);
            result = dialog.StartDialog(133, 173, 0, true);
        });
        return result;
    }

    static void End(const Opened& opened) { SendMessageW(opened.dialog, WM_COMMAND, 1, 0); }

    static HTREEITEM Next(HWND tree, WPARAM relation, HTREEITEM item)
    {
        return reinterpret_cast<HTREEITEM>(
            SendMessageW(tree, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
    }
    static HTREEITEM Root(HWND tree) { return Next(tree, TVGN_ROOT, nullptr); }

    static std::pair<std::wstring, LPARAM> Item(HWND tree, HTREEITEM handle)
    {
        wchar_t text[600] = {};
        TVITEMW item = {};
        item.mask = TVIF_TEXT | TVIF_PARAM;
        item.hItem = handle;
        item.pszText = text;
        item.cchTextMax = 600;
        EXPECT_TRUE(SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)));
        return {text, item.lParam};
    }

    // "text" for each item below, a blank deeper for each level.
    static void Describe(HWND tree, HTREEITEM parent, const std::wstring& indent,
                         std::vector<std::wstring>& lines)
    {
        for (HTREEITEM item = Next(tree, TVGN_CHILD, parent); item; item = Next(tree, TVGN_NEXT, item)) {
            lines.push_back(indent + Item(tree, item).first);
            Describe(tree, item, indent + L" ", lines);
        }
    }

    HWND AddChild(HWND parent, const wchar_t* title)
    {
        return CreateWindowExW(0, L"QuorvaneTestTask", title, WS_CHILD, 0, 0, 5, 5, parent, nullptr,
                               GetModuleHandleW(nullptr), nullptr);
    }
};

using Lines = std::vector<std::wstring>;

TEST_F(CDialogWindowsTest, ShowsEachWindowWithTitleAndClassAndItsChildrenBelowIt)
{
    HWND first = AddTask(L"First");
    HWND child = AddChild(first, L"b");
    AddChild(first, L"a");
    AddChild(child, L"inner");
    HWND second = AddTask(L"Second");
    ShowWindow(second, SW_HIDE);
    Open(nullptr, [&](Opened& opened) {
        HTREEITEM root = Root(opened.tree);
        EXPECT_EQ(Text(opened.dialog), L"Windows list");
        EXPECT_EQ(Item(opened.tree, root), (std::pair<std::wstring, LPARAM>{L"tests.exe", -1}));
        EXPECT_EQ(Next(opened.tree, TVGN_NEXT, root), nullptr);
        Lines lines;
        Describe(opened.tree, root, L"", lines);
        ASSERT_EQ(lines.size(), 5u);
        EXPECT_EQ(lines[0], L"\"First\" - QuorvaneTestTask");
        EXPECT_EQ(lines[4], L"\"Second\" - QuorvaneTestTask") << "hidden windows too";
        // Children come front-most first.
        EXPECT_EQ(GetWindow(first, GW_CHILD) == child, lines[1] == L" \"b\" - QuorvaneTestTask");
        EXPECT_NE(std::find(lines.begin(), lines.end(), L" \"a\" - QuorvaneTestTask"), lines.end());
        const auto inner = std::find(lines.begin(), lines.end(), L"  \"inner\" - QuorvaneTestTask");
        ASSERT_NE(inner, lines.end());
        EXPECT_EQ(*(inner - 1), L" \"b\" - QuorvaneTestTask");
        HTREEITEM item = Next(opened.tree, TVGN_CHILD, root);
        EXPECT_EQ(Item(opened.tree, item).second, reinterpret_cast<LPARAM>(first));
        End(opened);
    });
}

TEST_F(CDialogWindowsTest, TheRootIsExpanded)
{
    AddTask(L"First");
    Open(nullptr, [](Opened& opened) {
        const LRESULT state = SendMessageW(opened.tree, TVM_GETITEMSTATE,
                                           reinterpret_cast<WPARAM>(Root(opened.tree)), TVIS_EXPANDED);
        EXPECT_NE(state & TVIS_EXPANDED, 0);
        End(opened);
    });
}

TEST_F(CDialogWindowsTest, WindowsOfOtherProcessesAreNotListed)
{
    HWND own = AddTask(L"First");
    listed.insert(listed.begin(), GetDesktopWindow());  // of another process
    listed.push_back(reinterpret_cast<HWND>(0x123456)); // of none
    Open(nullptr, [&](Opened& opened) {
        Lines lines;
        Describe(opened.tree, Root(opened.tree), L"", lines);
        EXPECT_EQ(lines, Lines{L"\"First\" - QuorvaneTestTask"});
        End(opened);
    });
    Unlist(GetDesktopWindow());
    EXPECT_TRUE(IsWindow(own));
}

TEST_F(CDialogWindowsTest, AProcessWithoutWindowsHasALineThatSaysSo)
{
    AddTask(L"First");
    const auto check = [&](Opened& opened) {
        HTREEITEM root = Root(opened.tree);
        Lines lines;
        Describe(opened.tree, root, L"", lines);
        EXPECT_EQ(lines, Lines{L"No windows detected"});
        EXPECT_EQ(Item(opened.tree, Next(opened.tree, TVGN_CHILD, root)).second, -1);
        End(opened);
    };
    Open(nullptr, check, 0xFFFFFFF0);
}

TEST_F(CDialogWindowsTest, TheGivenWindowIsSelected)
{
    AddTask(L"First");
    HWND second = AddTask(L"Second");
    HWND child = AddChild(second, L"child");
    for (HWND preselected : {second, child}) {
        Open(preselected, [&](Opened& opened) {
            HTREEITEM selected = Next(opened.tree, TVGN_CARET, nullptr);
            ASSERT_NE(selected, nullptr);
            EXPECT_EQ(Item(opened.tree, selected).second, reinterpret_cast<LPARAM>(preselected));
            End(opened);
        });
    }
}

TEST_F(CDialogWindowsTest, TheTreeAsksForAllKeysAndHasTheFocus)
{
    AddTask(L"First");
    Open(nullptr, [](Opened& opened) {
        EXPECT_EQ(SendMessageW(opened.tree, WM_GETDLGCODE, 0, 0), 4);
        EXPECT_EQ(GetFocus(), opened.tree);
        End(opened);
    });
}

TEST_F(CDialogWindowsTest, OkAndActionAcceptCancelCancelsAndOthersDoNothing)
{
    AddTask(L"First");
    const std::pair<WPARAM, int> answers[] = {{1, 1}, {6, 1}, {2, 2}};
    for (const auto& answer : answers) {
        const int result =
            Open(nullptr, [&](Opened& opened) { SendMessageW(opened.dialog, WM_COMMAND, answer.first, 0); });
        EXPECT_EQ(result, answer.second);
    }
    Open(nullptr, [](Opened& opened) {
        for (const WPARAM command : {0, 3, 113, 114, 116, 121, CMD_EXIT, CMD_REFRESH}) {
            SendMessageW(opened.dialog, WM_COMMAND, command, 0);
        }
        opened.app.Later([opened] {
            EXPECT_TRUE(IsWindow(opened.dialog));
            End(opened);
        });
    });
}

TEST_F(CDialogWindowsTest, TheTreeFillsTheDialogWheneverItIsResized)
{
    Open(nullptr, [](Opened& opened) {
        const auto check = [&] {
            RECT rect = WindowRect(opened.tree);
            MapWindowPoints(nullptr, opened.dialog, reinterpret_cast<POINT*>(&rect), 2);
            const SIZE client = ClientSize(opened.dialog);
            EXPECT_EQ(rect, (RECT{0, 0, client.cx, client.cy}));
        };
        check();
        MoveWindow(opened.dialog, 0, 26, 180, 140, TRUE);
        check();
        End(opened);
    });
}

// The titles and class names of windows that were listed with these texts.
TEST_F(CDialogWindowsTest, TextsAreWholeWithinTheirBuffers)
{
    std::wstring title;
    std::wstring className;
    getText.instead = [&](HWND window, wchar_t* buffer, int size) {
        if (listed.empty() || window != listed[0]) {
            return getText.Real(window, buffer, size);
        }
        EXPECT_EQ(size, 260);
        const std::wstring kept = title.substr(0, static_cast<size_t>(size) - 1);
        wmemcpy(buffer, kept.c_str(), kept.size() + 1);
        return static_cast<int>(kept.size());
    };
    getClass.instead = [&](HWND window, wchar_t* buffer, int size) {
        if (listed.empty() || window != listed[0]) {
            return getClass.Real(window, buffer, size);
        }
        const std::wstring kept = className.substr(0, static_cast<size_t>(size) - 1);
        wmemcpy(buffer, kept.c_str(), kept.size() + 1);
        return static_cast<int>(kept.size());
    };
    AddTask(L"");
    const std::pair<std::wstring, std::wstring> texts[] = {
        {L"", L""},
        {std::wstring(255, L'%'), std::wstring(255, L'&')},
        {std::wstring(259, L'%'), std::wstring(255, L'c')},
        {std::wstring(260, L'"'), std::wstring(256, L'c')},
        {std::wstring(5000, L'x'), L"c"},
        {L"100% & \"quoted\" %s%n Проводник メモ帳", L"Класс %d"}};
    for (const auto& text : texts) {
        title = text.first;
        className = text.second;
        Open(nullptr, [&](Opened& opened) {
            const std::wstring expected =
                L"\"" + text.first.substr(0, 259) + L"\" - " + text.second.substr(0, 256);
            HTREEITEM item = Next(opened.tree, TVGN_CHILD, Root(opened.tree));
            EXPECT_EQ(Item(opened.tree, item).first, expected);
            End(opened);
        });
    }
}

TEST_F(CDialogWindowsTest, WindowInfoShowsTheReportOnTheSelectedWindow)
{
    AddTask(L"First");
    HWND second = AddTask(L"Second");
    Open(second, [&](Opened& opened) {
        opened.app.Later([&] {
            ASSERT_EQ(opened.app.dialogs->Count(), 2u);
            HWND information = opened.app.dialogs->At(1)->Window();
            EXPECT_EQ(Text(information), L"Information");
            const std::wstring report = Text(GetDlgItem(information, IDC_INFORMATION_TEXT));
            EXPECT_NE(
                report.find(
                    L"\r\n\r\nWindow name: Second\r\nClass name: QuorvaneTestTask\r\nWindow handle: 0x"),
                std::wstring::npos)
                << report;
            SendMessageW(information, WM_COMMAND, 1, 0);
        });
        SetFocus(opened.dialog);
        SendMessageW(opened.dialog, WM_COMMAND, CMD_WINDOW_INFO, 0);
        EXPECT_EQ(opened.app.dialogs->Count(), 1u);
        EXPECT_EQ(GetFocus(), opened.tree);
        End(opened);
    });
}

TEST_F(CDialogWindowsTest, TheRootAndTheLineForNoWindowHaveNoInfo)
{
    AddTask(L"First");
    const auto check = [](Opened& opened) {
        HTREEITEM root = Root(opened.tree);
        HTREEITEM below = Next(opened.tree, TVGN_CHILD, root);
        for (HTREEITEM item : {root, below}) {
            if (Item(opened.tree, item).second != -1) {
                continue;
            }
            SendMessageW(opened.tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
            SendMessageW(opened.dialog, WM_COMMAND, CMD_WINDOW_INFO, 0);
            EXPECT_EQ(opened.app.dialogs->Count(), 1u);
            EXPECT_EQ(Notice(opened.app), L"");
        }
        End(opened);
    };
    Open(nullptr, check);
    Open(nullptr, check, 0xFFFFFFF0);
}

TEST_F(CDialogWindowsTest, NoSelectionHasNoInfo)
{
    Open(nullptr, [](Opened& opened) {
        SendMessageW(opened.tree, TVM_SELECTITEM, TVGN_CARET, 0);
        SendMessageW(opened.dialog, WM_COMMAND, CMD_WINDOW_INFO, 0);
        EXPECT_EQ(opened.app.dialogs->Count(), 1u);
        End(opened);
    });
}

TEST_F(CDialogWindowsTest, AWindowThatHasGoneMeanwhileGivesANotice)
{
    HWND task = AddTask(L"First");
    Open(task, [&](Opened& opened) {
        EndTask(task);
        SendMessageW(opened.dialog, WM_COMMAND, CMD_WINDOW_INFO, 0);
        EXPECT_EQ(opened.app.dialogs->Count(), 1u);
        EXPECT_EQ(Notice(opened.app), L"Window is no longer exists.");
        End(opened);
    });
}
