// A screen of unequal resolutions: widths and places across go by the horizontal one, heights by the
// vertical.
#include "framework/CVireoDialog.h"
#include "lists/RowMeasures.h"
#include "tests/ui/ProgramTest.h"
#include "tests/ui/UnequalScreen.h"

class UnequalResolutionTest : public ProgramTest, protected UnequalScreen
{
  protected:
    static int LineOf(HFONT font)
    {
        HDC screen = GetDC(nullptr);
        HGDIOBJ previous = SelectObject(screen, font);
        TEXTMETRICW metrics = {};
        GetTextMetricsW(screen, &metrics);
        SelectObject(screen, previous);
        ReleaseDC(nullptr, screen);
        return metrics.tmHeight + metrics.tmExternalLeading;
    }
};

TEST_F(UnequalResolutionTest, HeightsGoByTheVerticalOne)
{
    InOwnProcess([&] {
        InProgram([](ProgramApp& app) {
            HFONT bold = app.Tasks().Look().BoldFont();
            const int line = LineOf(bold);
            EXPECT_EQ(app.Tasks().HeaderHeight(), line + 1 + 8);
            EXPECT_EQ(SingleLineRowHeight(bold, 1), line + 1 + 2);
            EXPECT_EQ(SingleLineRowHeight(bold, 100), 100 + 4);
        });
    });
}

TEST_F(UnequalResolutionTest, TheStripsWidthsGoByTheHorizontalOne)
{
    InOwnProcess([&] {
        InProgram([](ProgramApp& app) {
            CListPage& page = app.Tasks();
            const LONG height = page.HeaderHeight();
            const LONG arrow = height / 2;
            const LONG width = ClientSize(page.Window()).cx;
            RECT title = {};
            const SPY(DrawTextW)
                draw([&](HDC target, const wchar_t* text, int length, RECT* rect, UINT format) {
                    title = *rect;
                    return draw.Real(target, text, length, rect, format);
                });
            const SPY(CreatePen) pen;
            const SPY(MoveToEx) move;
            InvalidateRect(page.Window(), nullptr, FALSE);
            UpdateWindow(page.Window());
            EXPECT_EQ(title, (RECT{18 + arrow, 0, width - 18 - arrow, height}));
            ASSERT_EQ(pen.calls.size(), 1u);
            EXPECT_EQ(std::get<1>(pen.calls[0]), 3);
            // The line first, then the left head's base line and the right head's.
            ASSERT_GT(move.calls.size(), 2u);
            EXPECT_EQ(std::get<1>(move.calls[1]), 9 + arrow / 2);
            EXPECT_EQ(std::get<1>(move.calls[2]), width - 9 - arrow / 2);

            const SPY(TrackPopupMenuEx) track([](HMENU, UINT, int, int, HWND, TPMPARAMS*) { return FALSE; });
            SendMessageW(page.Window(), WM_LBUTTONDOWN, 0, MAKELPARAM(24 + arrow + 1, 0));
            EXPECT_EQ(track.calls.size(), 1u);
            SendMessageW(page.Window(), WM_LBUTTONDOWN, 0, MAKELPARAM(24 + arrow, 0));
            EXPECT_EQ(track.calls.size(), 1u);
            EXPECT_EQ(app.ActiveView()->Id(), 4);
        });
    });
}

TEST_F(UnequalResolutionTest, TheRowsWidthsGoByTheHorizontalOne)
{
    InOwnProcess([&] {
        AddTask(L"Task");
        InProgram([](ProgramApp& app) {
            CViewTasks& page = app.Tasks();
            std::vector<RECT> texts;
            int sizeWidth = 0;
            const SPY(DrawTextW)
                draw([&](HDC target, const wchar_t* text, int length, RECT* rect, UINT format) {
                    if (GetCurrentObject(target, OBJ_FONT) == page.Look().NormalFont()) {
                        SIZE extent = {};
                        GetTextExtentExPointW(target, text, static_cast<int>(wcslen(text)), 0, nullptr,
                                              nullptr, &extent);
                        sizeWidth = extent.cx;
                    }
                    texts.push_back(*rect);
                    return draw.Real(target, text, length, rect, format);
                });
            const SPY(ImageList_Draw) icon;
            std::vector<LONG> strips;
            const SPY(FillRect) fill([&](HDC target, const RECT* rect, HBRUSH brush) {
                if (brush == CE_COLOR_BRUSH(COLOR_SCROLLBAR)) {
                    strips.push_back(rect->bottom - rect->top);
                }
                return fill.Real(target, rect, brush);
            });
            HWND list = app.TaskList();
            InvalidateRect(list, nullptr, FALSE);
            UpdateWindow(list);
            ASSERT_EQ(icon.calls.size(), 1u);
            EXPECT_EQ(std::get<3>(icon.calls[0]), 12);
            ASSERT_EQ(texts.size(), 2u);
            EXPECT_EQ(texts[0].left, 24 + page.Look().Icons().width);
            EXPECT_EQ(texts[1].left, 24 + page.Look().Icons().width);
            EXPECT_EQ(texts[1].right, texts[0].right - sizeWidth - 6);
            ASSERT_FALSE(strips.empty());
            EXPECT_EQ(strips[0], 3) << "the strips between the rows too";
        });
    });
}

TEST_F(UnequalResolutionTest, DialogMarginsGoByTheHorizontalOne)
{
    InOwnProcess([&] { EXPECT_EQ(CVireoDialog::Margin(), 21); });
}
