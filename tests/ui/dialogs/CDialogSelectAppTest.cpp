// The application picker: what it shows, and what is chosen by what.
// profiles: pocketpc smartphone
#include "tests/support/Fatal.h"
#include "tests/ui/dialogs/PickerTest.h"

#include <algorithm>

class CDialogSelectAppTest : public PickerTest
{
  protected:
    static LRESULT Notify(const Opened& opened, UINT code)
    {
        NMHDR notification = {opened.list, IDC_LIST, code};
        return SendMessageW(opened.dialog, WM_NOTIFY, IDC_LIST, reinterpret_cast<LPARAM>(&notification));
    }

    static void ExpectFilled(const Opened& opened)
    {
        RECT rect = WindowRect(opened.list);
        MapWindowPoints(nullptr, opened.dialog, reinterpret_cast<POINT*>(&rect), 2);
        const SIZE client = ClientSize(opened.dialog);
        EXPECT_EQ(rect, (RECT{0, 0, client.cx, client.cy}));
        EXPECT_EQ(SendMessageW(opened.list, LVM_GETCOLUMNWIDTH, 0, 0), ClientSize(opened.list).cx);
        const int row = Mark(opened.list);
        const LRESULT top = SendMessageW(opened.list, LVM_GETTOPINDEX, 0, 0);
        EXPECT_LE(top, row);
        EXPECT_GT(top + SendMessageW(opened.list, LVM_GETCOUNTPERPAGE, 0, 0), row);
    }
};

TEST_F(CDialogSelectAppTest, AllProgramsAreListedWithTheFirstSelected)
{
    AddPrograms({L"b", L"a", L"c"});
    SPY(SetFocus) focus;
    Open([&](Opened& opened) {
        EXPECT_EQ(std::count(focus.calls.begin(), focus.calls.end(), std::make_tuple(opened.list)), 1);
        EXPECT_EQ(Text(opened.dialog), L"Select an application");
        EXPECT_EQ(Count(opened), 3);
        EXPECT_EQ(Mark(opened.list), 0);
        EXPECT_EQ(RowsInState(opened.list, LVIS_SELECTED), std::vector<int>{0});
        EXPECT_EQ(RowsInState(opened.list, LVIS_FOCUSED), std::vector<int>{0});
        EXPECT_EQ(GetFocus(), opened.list);
        ExpectFilled(opened);
    });
}

TEST_F(CDialogSelectAppTest, TheListIsTheCommonOne)
{
    AddPrograms({L"a"});
    Open([](Opened& opened) {
        wchar_t name[50] = {};
        GetClassNameW(opened.list, name, 50);
        EXPECT_STREQ(name, L"SysListView32");
        EXPECT_EQ(static_cast<DWORD>(GetWindowLongPtrW(opened.list, GWL_STYLE)), 0x5000540Du);
        EXPECT_EQ(SendMessageW(opened.list, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0) & 0x20000021, 0x20000021);
        EXPECT_EQ(GetWindow(opened.dialog, GW_CHILD), opened.list);
        EXPECT_EQ(GetWindow(opened.list, GW_HWNDNEXT), nullptr) << "there is no search";
    });
}

TEST_F(CDialogSelectAppTest, SelectingGivesTheShortcutNotWhatItStarts)
{
    AddPrograms({L"b", L"a", L"c & 100%"});
    for (const UINT command : {1u, 6u}) {
        EXPECT_TRUE(Open([&](Opened& opened) {
            Select(opened, 2);
            Run(opened, command);
        }));
        EXPECT_EQ(chosen, L"\\Menu\\c & 100%.lnk");
    }
    EXPECT_TRUE(Open([&](Opened& opened) { Run(opened, IDOK); }));
    EXPECT_EQ(chosen, L"\\Menu\\a.lnk");
}

TEST_F(CDialogSelectAppTest, CancellingLeavesTheCallersTextAlone)
{
    AddPrograms({L"a"});
    EXPECT_FALSE(Open([](Opened& opened) { Run(opened, 2); }));
    EXPECT_EQ(chosen, L"before");
}

TEST_F(CDialogSelectAppTest, OtherCommandsAreIgnored)
{
    AddPrograms({L"a"});
    EXPECT_FALSE(Open([](Opened& opened) {
        for (const UINT command : {0u, 3u, 112u, 113u, 114u, 121u, 0x8019u, 0x801Fu, 0x8021u}) {
            Run(opened, command);
        }
    }));
    EXPECT_EQ(chosen, L"before");
}

TEST_F(CDialogSelectAppTest, ActivatingARowChoosesNothing)
{
    AddPrograms({L"a"});
    EXPECT_FALSE(Open([](Opened& opened) {
        EXPECT_EQ(Notify(opened, static_cast<UINT>(LVN_ITEMACTIVATE)), 0);
        SendMessageW(opened.list, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(20, 5));
        SendMessageW(opened.list, WM_KEYDOWN, VK_RETURN, 1);
    }));
    EXPECT_EQ(chosen, L"before");
}

// As its loop would read it: the dialog manager makes a button's command of Enter.
TEST_F(CDialogSelectAppTest, EnterInTheLoopChoosesNothing)
{
    AddPrograms({L"a"});
    EXPECT_FALSE(Open([](Opened& opened) {
        MSG enter = {opened.list, WM_KEYDOWN, VK_RETURN, 0x1C0001, 0, {}};
        EXPECT_EQ(SendMessageW(opened.list, WM_GETDLGCODE, VK_RETURN, reinterpret_cast<LPARAM>(&enter)),
                  DLGC_WANTMESSAGE);
        IsDialogMessageW(opened.dialog, &enter);
        MSG message = {};
        while (PeekMessageW(&message, opened.dialog, WM_COMMAND, WM_COMMAND, PM_REMOVE)) {
            DispatchMessageW(&message);
        }
    }));
    EXPECT_EQ(chosen, L"before");
}

TEST_F(CDialogSelectAppTest, OtherKeysAreAsTheListHasThem)
{
    AddPrograms({L"a", L"b", L"c"});
    Open([](Opened& opened) {
        MSG down = {opened.list, WM_KEYDOWN, VK_DOWN, 1, 0, {}};
        const LRESULT own = SendMessageW(opened.list, WM_GETDLGCODE, 0, 0);
        EXPECT_EQ(SendMessageW(opened.list, WM_GETDLGCODE, VK_DOWN, reinterpret_cast<LPARAM>(&down)), own);
        EXPECT_NE(own, DLGC_WANTMESSAGE);
        IsDialogMessageW(opened.dialog, &down);
        EXPECT_EQ(Mark(opened.list), 1);
    });
}

TEST_F(CDialogSelectAppTest, ALetterFindsNoRow)
{
    AddPrograms({L"a", L"b", L"c"});
    Open([](Opened& opened) {
        EXPECT_EQ(Notify(opened, static_cast<UINT>(LVN_ODFINDITEMW)), -1);
        Select(opened, 2);
        SendMessageW(opened.list, WM_CHAR, L'b', 1);
        EXPECT_EQ(Mark(opened.list), 2);
        EXPECT_EQ(RowsInState(opened.list, LVIS_SELECTED), std::vector<int>{2});
    });
}

TEST_F(CDialogSelectAppTest, TheContextMenuIsSwallowed)
{
    AddPrograms({L"a"});
    Open([](Opened& opened) {
        EXPECT_EQ(Notify(opened, static_cast<UINT>(GN_CONTEXTMENU)), 1);
        EXPECT_EQ(Notify(opened, static_cast<UINT>(NM_CLICK)), 0);
        EXPECT_EQ(Notify(opened, static_cast<UINT>(LVN_ITEMACTIVATE)), 0);
    });
}

TEST_F(CDialogSelectAppTest, InAnEmptyListNothingCanBeChosen)
{
    EXPECT_FALSE(Open([](Opened& opened) {
        EXPECT_EQ(Count(opened), 0);
        EXPECT_EQ(GetFocus(), opened.list);
        Run(opened, 1);
        Run(opened, 6);
        EXPECT_TRUE(IsWindow(opened.dialog));
    }));
    EXPECT_EQ(chosen, L"before");
}

TEST_F(CDialogSelectAppTest, WithoutASelectionNothingCanBeChosen)
{
    AddPrograms({L"a"});
    EXPECT_FALSE(Open([](Opened& opened) {
        SendMessageW(opened.list, LVM_SETSELECTIONMARK, 0, -1);
        Run(opened, 1);
    }));
    EXPECT_EQ(chosen, L"before");
}

TEST_F(CDialogSelectAppTest, TheListFollowsTheDialogAndTheSelectionStaysInView)
{
    menu.AddMany(40);
    Open([](Opened& opened) {
        SendMessageW(opened.list, WM_KEYDOWN, VK_END, 1);
        EXPECT_EQ(Mark(opened.list), 39);
        ExpectFilled(opened);
        for (const SIZE& size : {SIZE{150, 90}, SIZE{200, 200}, SIZE{100, 150}}) {
            MoveWindow(opened.dialog, 0, 26, size.cx, size.cy, TRUE);
            ExpectFilled(opened);
            EXPECT_EQ(Mark(opened.list), 39);
        }
    });
}

// In a guarded heap a row of before ends the program.
TEST_F(CDialogSelectAppTest, ARescanMeanwhileLeavesNoRowBehind)
{
    menu.AddMany(10);
    EXPECT_FALSE(Open([&](Opened& opened) {
        Select(opened, 9);
        for (int i = 3; i < 10; i++) {
            menu.Remove(L"Program " + std::to_wstring(i) + L".lnk");
        }
        opened.app.startPrograms.Refill(opened.app.MainWindow());
        InvalidateRect(opened.list, nullptr, TRUE);
        UpdateWindow(opened.list);
        Run(opened, 1);
        EXPECT_TRUE(IsWindow(opened.dialog)) << "the tenth is gone";
    }));
    EXPECT_EQ(chosen, L"before");
    EXPECT_TRUE(Open([&](Opened& opened) {
        Select(opened, 1);
        menu.Add(L"0.lnk");
        opened.app.startPrograms.Refill(opened.app.MainWindow());
        Run(opened, 1);
    }));
    EXPECT_EQ(chosen, L"\\Menu\\Program 0.lnk");
}

TEST_F(CDialogSelectAppTest, AListThatCannotBeMadeIsFatal)
{
    const auto fail = [&] {
        int lists = 0;
        const SPY(CreateWindowExW)
            create([&](DWORD ex, const wchar_t* name, const wchar_t* title, DWORD style, int x, int y, int w,
                       int h, HWND parent, HMENU id, HINSTANCE instance, void* parameter) -> HWND {
                lists += style == 0x5000540D;
                return style == 0x5000540D && lists == 5
                           ? nullptr
                           : create.Real(ex, name, title, style, x, y, w, h, parent, id, instance, parameter);
            });
        Open([](Opened&) {});
    };
    EXPECT_FATAL_AT(fail(), L"CLB_SelectApp::Construct", 214, L"Error");
}

TEST_F(CDialogSelectAppTest, AColumnThatCannotBeMadeIsFatal)
{
    const auto fail = [&] {
        Open([](Opened& opened) {
            const SPY(SendMessageW) send([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
                return message == LVM_INSERTCOLUMNW ? LRESULT{-1}
                                                    : send.Real(window, message, wParam, lParam);
            });
            MoveWindow(opened.dialog, 0, 26, 100, 100, TRUE);
        });
    };
    EXPECT_FATAL_AT(fail(), L"CLB_SelectApp::RecreateColumns", 53, L"Error");
}
