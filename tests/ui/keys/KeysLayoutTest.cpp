// Where the controls of the hardware keys dialog of a Pocket PC are, however large it is.
// profiles: pocketpc pocketpc-vga
#include "tests/ui/keys/ButtonsTest.h"

class KeysLayoutTest : public ButtonsTest
{
  protected:
    static int Scaled(int n)
    {
        HDC screen = GetDC(nullptr);
        const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
        ReleaseDC(nullptr, screen);
        return (n * dpi + 48) / 96;
    }

    // A label in the middle of the row of its list, which ends at the right margin.
    static void ExpectRow(const Opened& opened, int label, int list, int top, SIZE client)
    {
        const int margin = Scaled(4);
        const RECT text = Place(opened, label);
        const RECT choice = Place(opened, list);
        EXPECT_EQ(text.left, margin);
        EXPECT_EQ(choice.left, text.right + margin);
        EXPECT_EQ(choice.right, client.cx - margin);
        EXPECT_EQ(choice.top, top);
        EXPECT_NEAR(text.top - choice.top, choice.bottom - text.bottom, 1);
        EXPECT_GE(text.top, choice.top);
    }

    static void ExpectFitted(const Opened& opened)
    {
        const SIZE client = ClientSize(opened.dialog);
        const int margin = Scaled(4);
        const RECT keys = Place(opened, keyList);
        const int row = Place(opened, pressList).bottom - Place(opened, pressList).top;
        EXPECT_EQ(keys, (RECT{margin, margin, client.cx - margin, client.cy - 2 * row - 3 * margin}));
        ExpectRow(opened, 1008, pressList, client.cy - 2 * row - 2 * margin, client);
        ExpectRow(opened, 1009, holdList, client.cy - row - margin, client);
        EXPECT_EQ(Place(opened, pressList).left, Place(opened, holdList).left);
        EXPECT_EQ(Place(opened, holdList).bottom, client.cy - margin);
    }

    static int TextWidth(HWND control)
    {
        HDC dc = GetDC(control);
        HGDIOBJ previous = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
        const std::wstring text = Text(control);
        SIZE size = {};
        GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
        SelectObject(dc, previous);
        ReleaseDC(control, dc);
        return size.cx;
    }
};

TEST_F(KeysLayoutTest, TheDialogCoversTheProgramAndItsControlsFillIt)
{
    OpenKeys([](Opened& opened) {
        EXPECT_EQ(WindowRect(opened.dialog), WindowRect(opened.app.MainWindow()));
        ExpectFitted(opened);
    });
}

TEST_F(KeysLayoutTest, TheControlsFollowTheDialog)
{
    OpenKeys([](Opened& opened) {
        const int row = Place(opened, pressList).bottom - Place(opened, pressList).top;
        for (const SIZE& size : {SIZE{320, 188}, SIZE{240, 268}, SIZE{160, 120}, SIZE{480, 588}}) {
            MoveWindow(opened.dialog, 0, 26, Scaled(size.cx), Scaled(size.cy), TRUE);
            ExpectFitted(opened);
            EXPECT_EQ(Place(opened, pressList).bottom - Place(opened, pressList).top, row);
            EXPECT_EQ(Place(opened, holdList).bottom - Place(opened, holdList).top, row);
        }
    });
}

TEST_F(KeysLayoutTest, TheLabelsHaveRoomForTheirTexts)
{
    OpenKeys([](Opened& opened) {
        for (const int label : {1008, 1009}) {
            const RECT place = Place(opened, label);
            EXPECT_GE(place.right - place.left, TextWidth(Control(opened, label)));
        }
    });
}

// A dialog that is too low for all has no buttons' list, and nothing lies over another thing.
TEST_F(KeysLayoutTest, InTooLittleRoomTheListGivesWay)
{
    OpenKeys([](Opened& opened) {
        MoveWindow(opened.dialog, 0, 26, Scaled(160), Scaled(30), TRUE);
        const RECT keys = Place(opened, keyList);
        EXPECT_EQ(keys.top, keys.bottom);
        EXPECT_GE(Place(opened, pressList).top, keys.bottom);
        EXPECT_GE(Place(opened, holdList).top, Place(opened, pressList).bottom);
    });
}

TEST_F(KeysLayoutTest, AnOpenListShowsSevenActionsWhateverTheDialogsSize)
{
    OpenKeys([](Opened& opened) {
        const RECT before = Place(opened, pressList);
        for (const SIZE& size : {SIZE{320, 188}, SIZE{240, 268}}) {
            MoveWindow(opened.dialog, 0, 26, Scaled(size.cx), Scaled(size.cy), TRUE);
            for (const int list : {pressList, holdList}) {
                RECT open = {};
                SendMessageW(Control(opened, list), CB_GETDROPPEDCONTROLRECT, 0,
                             reinterpret_cast<LPARAM>(&open));
                const LRESULT line = SendMessageW(Control(opened, list), CB_GETITEMHEIGHT, 0, 0);
                const RECT closed = Place(opened, list);
                EXPECT_GE(open.bottom - open.top - (closed.bottom - closed.top), 7 * line);
                EXPECT_EQ(closed.bottom - closed.top, before.bottom - before.top);
            }
        }
    });
}
