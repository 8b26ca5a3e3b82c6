// The only column of a virtual list, deleted and made again: whatever is made, and asked in between, is as if
// it had gone at once; made again as it was, it stays.
#include "tests/ui/UiTest.h"

#include <commctrl.h>

class ListViewColumnTest : public UiTest
{
  protected:
    HWND owner = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 10, 60, 200, 200, nullptr, nullptr,
                                 nullptr, nullptr);
    HWND list = CreateWindowExW(0, WC_LISTVIEWW, L"",
                                WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA | LVS_NOCOLUMNHEADER, 0, 0,
                                100, 80, owner, nullptr, nullptr, nullptr);
    HWND header = reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0));
    static inline int columnsMade;
    static inline WNDPROC headerProcedure;

    ListViewColumnTest()
    {
        Insert();
        headerProcedure = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrW(header, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountColumns)));
        columnsMade = 0;
    }
    ~ListViewColumnTest() override { DestroyWindow(owner); }

    static LRESULT CALLBACK CountColumns(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        columnsMade += message == HDM_INSERTITEMW ? 1 : 0;
        return CallWindowProcW(headerProcedure, window, message, wParam, lParam);
    }

    int ClientWidth() const
    {
        RECT client = {};
        GetClientRect(list, &client);
        return client.right;
    }

    LRESULT Insert(LVCOLUMNW column, int place = 0) const
    {
        return SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(place),
                            reinterpret_cast<LPARAM>(&column));
    }

    LVCOLUMNW Filling() const
    {
        LVCOLUMNW column = {};
        column.mask = LVCF_FMT | LVCF_WIDTH | LVCF_SUBITEM;
        column.cx = ClientWidth();
        return column;
    }

    LRESULT Insert() const { return Insert(Filling()); }
    LRESULT Delete() const { return SendMessageW(list, LVM_DELETECOLUMN, 0, 0); }
    int Width(int column = 0) const
    {
        return static_cast<int>(SendMessageW(list, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column), 0));
    }
    int Format() const
    {
        LVCOLUMNW column = {};
        column.mask = LVCF_FMT;
        SendMessageW(list, LVM_GETCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
        return column.fmt;
    }
    void SetCount(int count) const { SendMessageW(list, LVM_SETITEMCOUNT, static_cast<WPARAM>(count), 0); }
};

TEST_F(ListViewColumnTest, TheSameAgainStaysAndTheListIsPainted)
{
    ValidateRect(list, nullptr);
    EXPECT_EQ(Delete(), TRUE);
    EXPECT_EQ(Insert(), 0);
    EXPECT_EQ(columnsMade, 0);
    EXPECT_EQ(Width(), 100);
    RECT update = {};
    EXPECT_TRUE(GetUpdateRect(list, &update, FALSE));
    EXPECT_EQ(update.right, 100);
    EXPECT_EQ(update.bottom, 80);
    EXPECT_EQ(Delete(), TRUE) << "and once more";
    EXPECT_EQ(Insert(), 0);
    EXPECT_EQ(Width(1), 0);
}

TEST_F(ListViewColumnTest, WhoeverAsksFindsItGone)
{
    EXPECT_EQ(Delete(), TRUE);
    EXPECT_EQ(Width(), 0);
    EXPECT_EQ(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0), 0);
    EXPECT_EQ(Delete(), FALSE) << "there is none left";
    EXPECT_EQ(Insert(), 0);
    EXPECT_EQ(columnsMade, 1);
    EXPECT_EQ(Width(), 100);
    EXPECT_EQ(Width(1), 0);
}

TEST_F(ListViewColumnTest, AnotherWidthFormatOrPlaceIsMade)
{
    LVCOLUMNW narrower = Filling();
    narrower.cx = 60;
    Delete();
    Insert(narrower);
    EXPECT_EQ(Width(), 60);
    EXPECT_EQ(Width(1), 0);
    Delete();
    Insert();
    EXPECT_EQ(Width(), 100);
    LVCOLUMNW right = Filling();
    right.fmt = LVCFMT_RIGHT;
    Delete();
    Insert(right);
    EXPECT_EQ(columnsMade, 3);
    EXPECT_EQ(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0), 1);
    LVCOLUMNW named = Filling();
    named.mask |= LVCF_TEXT;
    wchar_t name[] = L"Name";
    named.pszText = name;
    Delete();
    Insert(named);
    EXPECT_EQ(columnsMade, 4);
}

TEST_F(ListViewColumnTest, OneOfTwoIsDeletedAtOnce)
{
    LVCOLUMNW second = Filling();
    second.cx = 40;
    Insert(second, 1);
    EXPECT_EQ(Delete(), TRUE);
    EXPECT_EQ(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0), 1);
    EXPECT_EQ(Width(), 40);
}

TEST_F(ListViewColumnTest, AListThatBecameWiderOrNeedsAScrollBarGetsAnotherColumn)
{
    MoveWindow(list, 0, 0, 150, 80, TRUE);
    Delete();
    Insert();
    EXPECT_EQ(Width(), 150);
    SetCount(100);
    Delete();
    const int beside = ClientWidth();
    EXPECT_LT(beside, 150);
    Insert();
    EXPECT_EQ(Width(), beside);
    SetCount(1);
    Delete();
    EXPECT_EQ(ClientWidth(), 150) << "the scroll bar goes with the column that was beside it";
    Insert();
    EXPECT_EQ(Width(), 150);
}

// Its column is too wide for it, the scroll bar below that takes room from the rows, and so there are two.
TEST_F(ListViewColumnTest, AListThatBecameNarrowerHasNoScrollBarsWhenItsRowsFit)
{
    SetCount(static_cast<int>(SendMessageW(list, LVM_GETCOUNTPERPAGE, 0, 0)));
    MoveWindow(list, 0, 0, 60, 80, TRUE);
    EXPECT_LT(ClientWidth(), 60);
    Delete();
    EXPECT_EQ(ClientWidth(), 60);
    Insert();
    EXPECT_EQ(Width(), 60);
    EXPECT_EQ(GetWindowLongPtrW(list, GWL_STYLE) & (WS_HSCROLL | WS_VSCROLL), 0);
}

TEST_F(ListViewColumnTest, TwoListsDoNotTakeEachOthersColumn)
{
    HWND other = CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA, 0,
                                 90, 100, 80, owner, nullptr, nullptr, nullptr);
    LVCOLUMNW column = Filling();
    SendMessageW(other, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    Delete();
    SendMessageW(other, LVM_DELETECOLUMN, 0, 0);
    EXPECT_EQ(Width(), 0);
    EXPECT_EQ(SendMessageW(other, LVM_GETCOLUMNWIDTH, 0, 0), 0);
}
