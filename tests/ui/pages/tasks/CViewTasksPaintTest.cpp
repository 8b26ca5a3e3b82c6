// The page of the running applications: how a row is drawn.
// profiles: pocketpc pocketpc-vga
#include "framework/Gdi.h"
#include "resources/ids.h"
#include "tests/ui/ProgramTest.h"
#include "tests/ui/pages/RowDrawing.h"

class CViewTasksPaintTest : public ProgramTest
{
  protected:
    static constexpr RECT row = RowDrawing::row;
    std::vector<DrawnText> texts; // of the last row

    // Draws the first row into a bitmap of its own.
    void Draw(ProgramApp& app, UINT state, const std::function<void(HDC)>& check = nullptr)
    {
        RowDrawing drawing(app.Tasks().Window(), app.TaskList());
        drawing.Draw(state, check);
        texts = drawing.texts;
    }
};

TEST_F(CViewTasksPaintTest, ARowIsItsHeapSizeInTheNormalFontAndItsNameInTheBold)
{
    AddTask(L"100% & \"Notes\" Проводник");
    InProgram([&](ProgramApp& app) {
        const_cast<STaskInfo&>(app.Tasks().Task(0)).heapBytes = 1536;
        Draw(app, 0);
        ASSERT_EQ(texts.size(), 2u);
        const LONG left = row.left + ScaledX(8) + app.Tasks().Look().Icons().width;
        EXPECT_EQ(texts[0].text, L"1.50 KB");
        EXPECT_EQ(texts[0].flags, 0x8026u);
        EXPECT_EQ(texts[0].rect, (RECT{left, row.top, row.right, row.bottom}));
        EXPECT_EQ(texts[0].font, app.Tasks().Look().NormalFont());
        EXPECT_EQ(texts[1].text, L"100% & \"Notes\" Проводник");
        EXPECT_EQ(texts[1].flags, 0x8024u);
        const LONG right = row.right - WidthOf(app.Tasks().Look().NormalFont(), L"1.50 KB") - ScaledX(2);
        EXPECT_EQ(texts[1].rect, (RECT{left, row.top, right, row.bottom}));
        EXPECT_EQ(texts[1].font, app.Tasks().Look().BoldFont());
        for (const DrawnText& each : texts) {
            EXPECT_EQ(each.colour, GetSysColor(COLOR_WINDOWTEXT));
            EXPECT_EQ(each.mode, TRANSPARENT);
        }
    });
}

TEST_F(CViewTasksPaintTest, SizesHaveTheirUnits)
{
    AddTask(L"Task");
    InProgram([&](ProgramApp& app) {
        const std::pair<uint64_t, const wchar_t*> sizes[] = {
            {0, L"0 B"}, {1023, L"1023 B"}, {1048576, L"1 MB"}, {0xC0000000, L"3 GB"}};
        for (const auto& [bytes, text] : sizes) {
            const_cast<STaskInfo&>(app.Tasks().Task(0)).heapBytes = bytes;
            Draw(app, 0);
            EXPECT_EQ(texts.at(0).text, text);
        }
    });
}

TEST_F(CViewTasksPaintTest, ASelectedRowIsFilledAndOthersAreNot)
{
    AddTask(L"Task");
    InProgram([&](ProgramApp& app) {
        const LONG x = row.right - 1;
        const LONG y = row.bottom - 1;
        Draw(app, ODS_SELECTED, [&](HDC target) {
            EXPECT_EQ(GetPixel(target, row.left, row.top), GetSysColor(COLOR_HIGHLIGHT));
            EXPECT_EQ(GetPixel(target, x, y), GetSysColor(COLOR_HIGHLIGHT));
            EXPECT_NE(GetPixel(target, row.left - 1, row.top), GetSysColor(COLOR_HIGHLIGHT));
            EXPECT_NE(GetPixel(target, row.right, row.top), GetSysColor(COLOR_HIGHLIGHT));
            EXPECT_NE(GetPixel(target, row.left, row.bottom), GetSysColor(COLOR_HIGHLIGHT));
        });
        EXPECT_EQ(texts.at(0).colour, GetSysColor(COLOR_HIGHLIGHTTEXT));
        EXPECT_EQ(texts.at(1).colour, GetSysColor(COLOR_HIGHLIGHTTEXT));
        for (const UINT state : {0, ODS_FOCUS, ODS_GRAYED}) {
            Draw(app, state, [&](HDC target) {
                EXPECT_EQ(GetPixel(target, row.left, row.top), RGB(128, 128, 128)) << "as it was";
                EXPECT_EQ(GetPixel(target, row.left, y), RGB(128, 128, 128));
            });
        }
    });
}

TEST_F(CViewTasksPaintTest, TheListsIconIsInTheMiddleOfTheRow)
{
    AddTask(L"Task");
    InProgram([&](ProgramApp& app) {
        SPY(ImageList_Draw) image;
        Draw(app, 0);
        ASSERT_EQ(image.calls.size(), 1u);
        const auto& [list, index, dc, x, y, style] = image.calls[0];
        EXPECT_EQ(list, app.Tasks().Look().Icons().list);
        EXPECT_EQ(index, app.Tasks().Task(0).iconIndex);
        EXPECT_EQ(x, row.left + ScaledX(4));
        EXPECT_EQ(y, row.top + (50 - app.Tasks().Look().Icons().height) / 2);
        EXPECT_EQ(style, static_cast<UINT>(ILD_NORMAL));
        EXPECT_NE(dc, nullptr);
    });
}

TEST_F(CViewTasksPaintTest, ARecordsOwnIconIsDrawnInItsPlace)
{
    AddTask(L"Task");
    InProgram([&](ProgramApp& app) {
        HICON icon = LoadIconW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(101));
        const_cast<STaskInfo&>(app.Tasks().Task(0)).icon = icon;
        SPY(ImageList_Draw) image;
        SPY(DrawIconEx) drawIcon;
        Draw(app, 0);
        EXPECT_TRUE(image.calls.empty());
        ASSERT_EQ(drawIcon.calls.size(), 1u);
        EXPECT_EQ(std::get<1>(drawIcon.calls[0]), row.left + ScaledX(4));
        EXPECT_EQ(std::get<2>(drawIcon.calls[0]), row.top + (50 - app.Tasks().Look().Icons().height) / 2);
        EXPECT_EQ(std::get<3>(drawIcon.calls[0]), icon);
        EXPECT_EQ(std::get<8>(drawIcon.calls[0]), static_cast<UINT>(DI_NORMAL));
    });
}

TEST_F(CViewTasksPaintTest, OtherControlsAreNotDrawn)
{
    AddTask(L"Task");
    InProgram([&](ProgramApp& app) {
        SPY(DrawTextW) draw;
        DRAWITEMSTRUCT item = {};
        item.CtlType = ODT_BUTTON;
        item.rcItem = row;
        SendMessageW(app.Tasks().Window(), WM_DRAWITEM, 5, reinterpret_cast<LPARAM>(&item));
        EXPECT_TRUE(draw.calls.empty());
    });
}

TEST_F(CViewTasksPaintTest, ANameOfAnyLengthStaysInItsPlace)
{
    AddTask(std::wstring(259, L'W').c_str());
    InProgram([&](ProgramApp& app) {
        Draw(app, 0, [&](HDC target) {
            for (LONG y = row.top; y < row.bottom; y++) {
                EXPECT_EQ(GetPixel(target, row.right + 1, y), RGB(128, 128, 128));
            }
        });
        EXPECT_EQ(texts.at(1).text.size(), 259u);
    });
}

// The strip above the list.
TEST_F(CViewTasksPaintTest, TheTitleStandsBetweenTheArrows)
{
    InProgram([&](ProgramApp& app) {
        std::vector<DrawnText> drawn;
        SPY(DrawTextW) draw;
        draw.instead = [&](HDC dc, const wchar_t* text, int length, RECT* rect, UINT flags) {
            drawn.push_back(
                {text, *rect, flags, GetCurrentObject(dc, OBJ_FONT), GetTextColor(dc), GetBkMode(dc)});
            return draw.Real(dc, text, length, rect, flags);
        };
        HWND page = app.Tasks().Window();
        InvalidateRect(page, nullptr, FALSE);
        UpdateWindow(page);
        ASSERT_EQ(drawn.size(), 1u);
        const int height = app.Tasks().HeaderHeight();
        const int inset = ScaledX(6) + height / 2;
        EXPECT_EQ(drawn[0].text, L"Running applications");
        EXPECT_EQ(drawn[0].flags, 0x8024u);
        EXPECT_EQ(drawn[0].rect, (RECT{inset, 0, ClientSize(page).cx - inset, height}));
        EXPECT_EQ(drawn[0].font, app.Tasks().Look().BoldFont());
        EXPECT_EQ(drawn[0].colour, GetSysColor(COLOR_WINDOWTEXT));
        EXPECT_EQ(drawn[0].mode, TRANSPARENT);
    });
}
