// The launcher page by keys: typing, Back, and the keys that move through the list.
// profiles: pocketpc pocketpc-vga smartphone
// device's executable: pocketpc pocketpc-vga smartphone
#include "tests/e2e/StartScreen.h"

#include "resources/ids.h"
#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"

using namespace rig;

class StartTypingTest : public StartScreen
{
  protected:
    // The row's name with a part of it underlined, which normal letters are beside.
    bool RowUnderlines(int row, const std::wstring& before, const std::wstring& match) const
    {
        return WaitFor([&] {
            const auto bounds = ListRowOnScreen(list, row);
            if (!bounds) {
                return false;
            }
            const LONG left = bounds->left + OnScreen(8) + OnScreen(16);
            const LONG begin = left + normal.SizeOf(before).cx;
            const LONG end = begin + normal.SizeOf(match).cx;
            const COLORREF ink = GetSysColor(ListMark(list) == row ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT);
            const Picture shown = Picture::OfScreen(*bounds);
            const auto solid = [&](LONG from, LONG to, LONG y) {
                return shown.Count(ink, {from - bounds->left, y, to - bounds->left, y + 1}) == to - from;
            };
            for (LONG y = shown.Height() / 2; y < shown.Height(); y++) {
                if (solid(begin, end, y)) {
                    return !solid(begin, end + OnScreen(4), y) && (before.empty() || !solid(left, end, y));
                }
            }
            return false;
        });
    }
};

TEST_F(StartTypingTest, EveryLetterOfSeveralNarrowsTheList)
{
    EXPECT_TRUE(RowIs(0, L"Calculator"));
    EXPECT_TRUE(RowIs(1, L"Calendar"));
    EXPECT_TRUE(RowIs(2, L"Notepad"));
    EXPECT_TRUE(RowIs(3, L"WineMine"));
    Search(L"cal");
    EXPECT_TRUE(HasRows(2));
    EXPECT_TRUE(HasMark(0));
    EXPECT_TRUE(RowUnderlines(0, L"", L"Cal"));
    EXPECT_TRUE(RowUnderlines(1, L"", L"Cal"));
    ExpectUsable();
    PressKey('E');
    EXPECT_TRUE(BoxHas(L"cale"));
    EXPECT_TRUE(HasRows(1));
    EXPECT_TRUE(RowUnderlines(0, L"", L"Cale"));
}

TEST_F(StartTypingTest, OnlyTheMatchIsUnderlinedWhereverItIs)
{
    Search(L"mi");
    EXPECT_TRUE(HasRows(1));
    EXPECT_TRUE(RowUnderlines(0, L"Wine", L"Mi"));
}

TEST_F(StartTypingTest, BackErasesLettersAndDoesNothingElse)
{
    Search(L"cale");
    ASSERT_TRUE(HasRows(1));
    for (const auto& [text, rows] : {std::pair{L"cal", 2}, {L"ca", 2}, {L"c", 2}, {L"", 4}, {L"", 4}}) {
        PressKey(VK_ESCAPE);
        EXPECT_TRUE(BoxHas(text)) << testing::PrintToString(TextOf(box));
        EXPECT_TRUE(HasRows(rows));
        ExpectUsable();
    }
    Search(L"note");
    EXPECT_TRUE(HasRows(1));
}

TEST_F(StartTypingTest, EnterStartsTheFirstMatch)
{
    PressKey('W');
    PressKey('I');
    PressKey(VK_RETURN);
    EXPECT_TRUE(ComesAndGoes(L"WineMine"));
}

TEST_F(StartTypingTest, EnterStartsTheSelectedRow)
{
    ASSERT_NO_FATAL_FAILURE(Select(2));
    PressKey(VK_RETURN);
    EXPECT_TRUE(ComesAndGoes(L"Untitled - Notepad"));
}

TEST_F(StartTypingTest, KeysMoveTheSelectionAndTheFocusStays)
{
    PressKey(VK_DOWN, 2);
    EXPECT_TRUE(HasMark(2));
    PressKey(VK_UP);
    EXPECT_TRUE(HasMark(1));
    PressKey(VK_END);
    EXPECT_TRUE(HasMark(3));
    PressKey(VK_HOME);
    EXPECT_TRUE(HasMark(0));
    for (int i = 0; i < 30; i++) {
        Shortcut(L"Many\\X" + std::to_wstring(10 + i), L"\\x.exe");
    }
    Do(CMD_REFRESH);
    ASSERT_TRUE(HasRows(34));
    const int page = ListRowsPerPage(list);
    PressKey(VK_NEXT, 2);
    EXPECT_TRUE(WaitFor([&] { return ListTopRow(list) > 0 && ListMark(list) >= page; }));
    PressKey(VK_PRIOR, 2);
    EXPECT_TRUE(HasMark(0));
    EXPECT_EQ(0, ListTopRow(list));
    ExpectUsable();
}

TEST_F(StartTypingTest, TypingSelectsTheFirstRowAgain)
{
    ASSERT_NO_FATAL_FAILURE(Select(3));
    Search(L"a");
    EXPECT_TRUE(HasRows(3));
    EXPECT_TRUE(HasMark(0));
}

TEST_F(StartTypingTest, ArrowsPageAndTheSearchSurvives)
{
    Search(L"note");
    PressKey(VK_LEFT);
    ASSERT_TRUE(program->WaitForPage(1));
    PressKey(VK_RIGHT, 2);
    ASSERT_TRUE(program->WaitForPage(2));
    PressKey(VK_LEFT);
    ASSERT_TRUE(program->WaitForPage(3));
    ExpectUsable();
    EXPECT_EQ(L"note", TextOf(box));
    EXPECT_EQ(1, ListCount(list));
    EXPECT_TRUE(HasMark(0));
    PressKey('X');
    EXPECT_TRUE(WaitFor([&] { return TextOf(box).size() == 5; }));
}
