// The parameters of what a list tells its control.
#include "tests/ui/TestList.h"
#include "tests/ui/UiTest.h"

class ListMessagesTest : public UiTest
{
  protected:
    TestApp app;
    TestList list;
    ListOwner owner{list};

    ListMessagesTest() { app.instance = GetModuleHandleW(nullptr); }
};

TEST_F(ListMessagesTest, ItsExtendedStylesAreAddedToThoseOfTheControl)
{
    LPARAM asked = 0;
    const SPY(SendMessageW) send([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
        if (message == LVM_GETEXTENDEDLISTVIEWSTYLE) {
            return LVS_EX_CHECKBOXES | LVS_EX_GRIDLINES;
        }
        if (message == LVM_SETEXTENDEDLISTVIEWSTYLE) {
            EXPECT_EQ(wParam, 0U);
            asked = lParam;
        }
        return send.Real(window, message, wParam, lParam);
    });
    list.Construct(owner.window);
    EXPECT_EQ(asked, 0x20000021 | LVS_EX_CHECKBOXES);
}

TEST_F(ListMessagesTest, ANewCountKeepsNeitherPlaceNorPicture)
{
    list.Construct(owner.window);
    const SPY(SendMessageW) send;
    list.SetCount(12);
    ASSERT_EQ(send.calls.size(), 1U);
    EXPECT_EQ(send.calls[0],
              std::make_tuple(list.Window(), static_cast<UINT>(LVM_SETITEMCOUNT), WPARAM{12}, LPARAM{0}));
}
