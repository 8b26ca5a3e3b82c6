// The launcher page by the stylus: double taps, the title strip's pop-up, and the menu of the search box.
// profiles: pocketpc pocketpc-vga
// device's executable: pocketpc-vga
#include "tests/e2e/StartScreen.h"

#include "resources/ids.h"
#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/MenuTwin.h"
#include "rig/WaitFor.h"

using namespace rig;

static constexpr int pasteLine = 3; // the greyed ones before it count

class StartStylusTest : public StartScreen
{
  protected:
    static void Copy(const std::wstring& text)
    {
        ASSERT_TRUE(WaitFor([] { return OpenClipboard(nullptr); }));
        EmptyClipboard();
        const size_t size = (text.size() + 1) * sizeof(wchar_t);
        const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size);
        memcpy(GlobalLock(block), text.c_str(), size);
        GlobalUnlock(block);
        SetClipboardData(CF_UNICODETEXT, block);
        CloseClipboard();
    }

    // A place of each test's own: the second touch of the same place would be a double tap.
    POINT InBox() const
    {
        static LONG touches = 0;
        const RECT area = ScreenRectOf(box);
        return {area.left + OnScreen(40 + 20 * touches++), (area.top + area.bottom) / 2};
    }

    // The stylus stays on the box until the menu is there, and is lifted beside it.
    void Hold(POINT place) const
    {
        StylusDown(place);
        EXPECT_TRUE(WaitFor([] { return OpenMenu(); })) << "holding opens no menu";
        StylusUp({ScreenRectOf(Main()).right - 2, ScreenRectOf(list).bottom - 2});
    }
};

TEST_F(StartStylusTest, ADoubleTapStartsTheRow)
{
    const auto row = ListRowOnScreen(list, 3);
    ASSERT_TRUE(row);
    DoubleTap({(row->left + row->right) / 2, (row->top + row->bottom) / 2});
    EXPECT_TRUE(ComesAndGoes(L"WineMine"));
}

TEST_F(StartStylusTest, ATapOnARowSelectsItAndTypingGoesOn)
{
    const auto row = ListRowOnScreen(list, 2);
    ASSERT_TRUE(row);
    Tap({(row->left + row->right) / 2, (row->top + row->bottom) / 2});
    EXPECT_TRUE(HasMark(2));
    ExpectUsable();
    Search(L"no");
    EXPECT_TRUE(HasRows(1));
}

TEST_F(StartStylusTest, TheStripsPopUpRefreshes)
{
    Shortcut(L"Another", L"\\x.exe");
    const LONG middle = (ScreenRectOf(program->Page(3)).top + ScreenRectOf(box).top - OnScreen(4)) / 2;
    Tap({OnScreen(60), middle});
    ASSERT_TRUE(WaitFor([] { return OpenMenu(); }));
    ParkStylus();
    PressKey(VK_UP);
    PressKey(VK_RETURN);
    EXPECT_TRUE(HasRows(5));
    ExpectUsable();
}

TEST_F(StartStylusTest, HoldingTheBoxShowsItsMenu)
{
    const POINT place = InBox();
    Copy(L"cal");
    const MenuTwin fresh({{L"Cut", true}, {L"Copy", true}, {L"Paste"}, {}, {L"Undo", true}}, place, 0);
    ASSERT_GT(fresh.Look().Colours(), 1);
    ASSERT_TRUE(Raise(Main()));
    Hold(place);
    ParkStylus();
    EXPECT_TRUE(WaitFor([&] { return Picture::OfScreen(fresh.Area()) == fresh.Look(); }));
    PressKey(VK_DOWN, pasteLine);
    PressKey(VK_RETURN);
    EXPECT_TRUE(BoxHas(L"cal")) << testing::PrintToString(TextOf(box));
    EXPECT_TRUE(HasRows(2));
    ExpectUsable();
}

TEST_F(StartStylusTest, MoreThanFitsIsCutWhenPasted)
{
    Copy(std::wstring(300, L'q'));
    ASSERT_TRUE(Raise(Main())); // the clipboard's owner has been in front
    Hold(InBox());
    ParkStylus();
    PressKey(VK_DOWN, pasteLine);
    PressKey(VK_RETURN);
    EXPECT_TRUE(BoxHas(std::wstring(254, L'q'))) << TextOf(box).size();
    EXPECT_TRUE(HasRows(0));
    EXPECT_TRUE(ListSays(L"No matches: " + std::wstring(254, L'q')));
}
