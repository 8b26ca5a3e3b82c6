// A virtual list repaints itself whole where Wine's control would paint too little, too early or at the wrong
// place.
#include "tests/ui/UiTest.h"

#include <commctrl.h>

class ListViewFixTest : public UiTest
{
  protected:
    HWND owner = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 10, 60, 100, 80, nullptr, nullptr,
                                 nullptr, nullptr);
    HWND list = CreateWindowExW(0, WC_LISTVIEWW, L"",
                                WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA | LVS_NOCOLUMNHEADER, 0, 0,
                                100, 80, owner, nullptr, nullptr, nullptr);

    ListViewFixTest() { SendMessageW(list, LVM_SETITEMCOUNT, 10, 0); }
    ~ListViewFixTest() override { DestroyWindow(owner); }

    // Whether the message leaves the whole list to be painted.
    bool Repaints(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        RECT client = {};
        RECT update = {};
        GetClientRect(list, &client);
        ValidateRect(list, nullptr);
        SendMessageW(list, message, wParam, lParam);
        return GetUpdateRect(list, &update, FALSE) && update == client;
    }
};

TEST_F(ListViewFixTest, AMarkThatMovesAlone)
{
    EXPECT_TRUE(Repaints(LVM_SETSELECTIONMARK, 0, 3));
    EXPECT_EQ(SendMessageW(list, LVM_GETSELECTIONMARK, 0, 0), 3);
    EXPECT_FALSE(Repaints(LVM_SETSELECTIONMARK, 0, 3)) << "it has not moved";
}

TEST_F(ListViewFixTest, TheFocusThatComesOrGoes)
{
    SetFocus(owner);
    EXPECT_TRUE(Repaints(WM_SETFOCUS));
    EXPECT_TRUE(Repaints(WM_KILLFOCUS));
}

TEST_F(ListViewFixTest, AnyOtherMessageIsTheControlsOwn)
{
    EXPECT_FALSE(Repaints(LVM_GETITEMCOUNT));
    EXPECT_FALSE(Repaints(WM_TIMER, 4711));
}
