// The launcher page: how a row and an empty list are drawn.
// profiles: pocketpc pocketpc-vga
#include "tests/ui/pages/RowDrawing.h"
#include "tests/ui/pages/start/StartPageTest.h"

class CLBStartPaintTest : public StartPageTest
{
  protected:
    static constexpr RECT row = RowDrawing::row;

    // Draws the first row of a search.
    void OnRow(const std::wstring& name, const std::wstring& search,
               const std::function<void(ProgramApp&, RowDrawing&)>& test)
    {
        AddPrograms({name});
        OnPage([&](ProgramApp& app) {
            Search(app, search);
            ASSERT_EQ(Count(app), 1);
            RowDrawing drawing(Page(app).Window(), List(app));
            test(app, drawing);
        });
    }

    // The pieces: each begins where the one before ended, as wide as it was measured where there is room.
    void ExpectPieces(const std::wstring& name, const std::wstring& search, const Names& pieces,
                      size_t underlinedPiece)
    {
        menu.folders[L"\\Menu\\"].clear();
        OnRow(name, search, [&](ProgramApp& app, RowDrawing& drawing) {
            drawing.Draw(0);
            const std::vector<DrawnText> drawn = Drawn(drawing);
            ASSERT_EQ(drawn.size(), pieces.size());
            LONG left = row.left + ScaledX(8) + Page(app).Look().Icons().width;
            for (size_t i = 0; i < pieces.size(); i++) {
                const HFONT font =
                    i == underlinedPiece ? static_cast<HFONT>(Underlined()) : Page(app).Look().NormalFont();
                EXPECT_EQ(drawn[i].text, pieces[i]);
                EXPECT_EQ(drawn[i].font, font);
                EXPECT_EQ(drawn[i].flags, 0x8024u);
                EXPECT_EQ(drawn[i].rect, (RECT{left, row.top, row.right, row.bottom})) << i;
                left += DrawnWidth(font, pieces[i]);
            }
        });
    }

    static LONG DrawnWidth(HFONT font, const std::wstring& text)
    {
        HDC screen = GetDC(nullptr);
        HGDIOBJ previous = SelectObject(screen, font);
        RECT rect = {};
        DrawTextW(screen, text.c_str(), -1, &rect, 0x420);
        SelectObject(screen, previous);
        ReleaseDC(nullptr, screen);
        return rect.right;
    }

    // Without what was only measured.
    static std::vector<DrawnText> Drawn(const RowDrawing& drawing)
    {
        std::vector<DrawnText> drawn;
        for (const DrawnText& each : drawing.texts) {
            if ((each.flags & DT_CALCRECT) == 0) {
                drawn.push_back(each);
            }
        }
        return drawn;
    }

    // What the empty list shows.
    static DrawnText EmptyText(ProgramApp& app)
    {
        DrawnText shown = {};
        int texts = 0;
        const SPY(DrawTextW) draw([&](HDC dc, const wchar_t* text, int length, RECT* rect, UINT flags) {
            EXPECT_EQ(length, -1);
            shown = {text, *rect, flags, nullptr, GetTextColor(dc), GetBkMode(dc)};
            texts++;
            return draw.Real(dc, text, length, rect, flags);
        });
        InvalidateRect(List(app), nullptr, FALSE);
        UpdateWindow(List(app));
        EXPECT_EQ(texts, 1);
        return shown;
    }
};

TEST_F(CLBStartPaintTest, WithoutASearchTheWholeNameStandsBehindTheIcon)
{
    OnRow(L"A&B 100% Ключ", L"", [&](ProgramApp& app, RowDrawing& drawing) {
        SPY(ImageList_Draw) image;
        drawing.Draw(0);
        const CRowLook& look = Page(app).Look();
        ASSERT_EQ(image.calls.size(), 1u);
        const auto& [list, index, dc, x, y, style] = image.calls[0];
        EXPECT_EQ(list, look.Icons().list);
        EXPECT_EQ(index, Page(app).Program(0).icon);
        EXPECT_EQ(x, row.left + ScaledX(4));
        EXPECT_EQ(y, row.top + (50 - look.Icons().height) / 2);
        EXPECT_EQ(style, static_cast<UINT>(ILD_NORMAL));
        EXPECT_NE(dc, nullptr);
        ASSERT_EQ(drawing.texts.size(), 1u) << "nothing is measured";
        const DrawnText& title = drawing.texts[0];
        EXPECT_EQ(title.text, L"A&B 100% Ключ");
        EXPECT_EQ(title.font, look.NormalFont());
        EXPECT_EQ(title.flags, 0x8024u);
        EXPECT_EQ(title.rect,
                  (RECT{row.left + ScaledX(8) + look.Icons().width, row.top, row.right, row.bottom}));
        EXPECT_EQ(title.colour, GetSysColor(COLOR_WINDOWTEXT));
        EXPECT_EQ(title.mode, TRANSPARENT);
    });
}

TEST_F(CLBStartPaintTest, TheMatchIsUnderlinedInTheNamesOwnCase)
{
    ExpectPieces(L"My Calculator", L"CALC", {L"My ", L"Calc", L"ulator"}, 1);
    ExpectPieces(L"Calculator", L"calc", {L"Calc", L"ulator"}, 0);
    ExpectPieces(L"Radical", L"cal", {L"Radi", L"cal"}, 1);
    ExpectPieces(L"calc", L"Calc", {L"calc"}, 0);
}

TEST_F(CLBStartPaintTest, OnlyTheFirstMatchIsUnderlined)
{
    ExpectPieces(L"banana", L"an", {L"b", L"an", L"ana"}, 1);
    ExpectPieces(L"aaaa", L"aa", {L"aa", L"aa"}, 0);
}

TEST_F(CLBStartPaintTest, OtherScriptsAndSignsAreCutAtTheirPlaces)
{
    ExpectPieces(L"ПРОВОДНИК", L"вод", {L"ПРО", L"ВОД", L"НИК"}, 1);
    ExpectPieces(L"R&D &Tools", L"d &t", {L"R&", L"D &T", L"ools"}, 1);
    ExpectPieces(L"100% sure", L"%", {L"100", L"%", L" sure"}, 1);
}

TEST_F(CLBStartPaintTest, ASelectedRowIsFilledAndAllItsPiecesHighlighted)
{
    OnRow(L"banana", L"an", [&](ProgramApp&, RowDrawing& drawing) {
        const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT);
        drawing.Draw(ODS_SELECTED, [&](HDC target) {
            EXPECT_EQ(GetPixel(target, row.left, row.top), highlight);
            EXPECT_EQ(GetPixel(target, row.right - 1, row.bottom - 1), highlight);
            EXPECT_EQ(GetPixel(target, row.left - 1, row.top), RowDrawing::ground);
            EXPECT_EQ(GetPixel(target, row.right, row.bottom - 1), RowDrawing::ground);
            EXPECT_EQ(GetPixel(target, row.left, row.bottom), RowDrawing::ground);
        });
        const std::vector<DrawnText> drawn = Drawn(drawing);
        EXPECT_EQ(drawn.size(), 3u);
        for (const DrawnText& each : drawn) {
            EXPECT_EQ(each.colour, GetSysColor(COLOR_HIGHLIGHTTEXT));
            EXPECT_EQ(each.mode, TRANSPARENT);
        }
        drawing.Draw(0, [&](HDC target) {
            EXPECT_EQ(GetPixel(target, row.right - 1, row.bottom - 1), RowDrawing::ground);
        });
    });
}

TEST_F(CLBStartPaintTest, ANameWithoutRoomStaysInItsRow)
{
    const std::wstring before(100, L'W');
    OnRow(before + L"match" + before, L"match", [&](ProgramApp&, RowDrawing& drawing) {
        drawing.Draw(0, [&](HDC target) {
            int outside = 0;
            for (int x = 0; x < 300; x++) {
                for (int y = 0; y < 100; y++) {
                    const bool inside = x >= row.left && x < row.right && y >= row.top && y < row.bottom;
                    outside += !inside && GetPixel(target, x, y) != RowDrawing::ground;
                }
            }
            EXPECT_EQ(outside, 0);
        });
    });
}

TEST_F(CLBStartPaintTest, TheIconIsAskedForOnceByTheShortcutsPath)
{
    AddPrograms({L"a"});
    OnPage([](ProgramApp& app) {
        const_cast<SAppsList&>(Page(app).Program(0)).icon = -1;
        std::vector<std::pair<std::wstring, UINT>> asked;
        const SPY(SHGetFileInfo) ask([&](const wchar_t* path, DWORD, SHFILEINFOW* info, UINT, UINT flags) {
            asked.emplace_back(path, flags);
            info->iIcon = 7;
            return DWORD_PTR{1};
        });
        SPY(ImageList_Draw) image;
        RowDrawing drawing(Page(app).Window(), List(app));
        drawing.Draw(0);
        drawing.Draw(0);
        EXPECT_EQ(asked, (std::vector<std::pair<std::wstring, UINT>>{{L"\\Menu\\a.lnk", 0x4001}}));
        ASSERT_EQ(image.calls.size(), 2u);
        EXPECT_EQ(std::get<1>(image.calls[1]), 7);
    });
}

TEST_F(CLBStartPaintTest, ARowWithoutAProgramIsNotDrawn)
{
    OnRow(L"a", L"", [&](ProgramApp&, RowDrawing& drawing) {
        for (const UINT item : {1u, 0xFFFFFFFFu}) {
            drawing.Draw(ODS_SELECTED, nullptr, item);
            EXPECT_TRUE(drawing.texts.empty()) << item;
        }
    });
}

TEST_F(CLBStartPaintTest, AnEmptyStartMenuIsToldInTheMiddle)
{
    OnPage([](ProgramApp& app) {
        const DrawnText shown = EmptyText(app);
        EXPECT_EQ(shown.text, L"No applications detected");
        EXPECT_EQ(shown.flags, 0x8815u);
        const SIZE client = ClientSize(List(app));
        EXPECT_EQ(shown.rect, (RECT{15, 0, client.cx - 15, client.cy}));
        EXPECT_EQ(shown.colour, GetSysColor(COLOR_WINDOWTEXT));
        EXPECT_EQ(shown.mode, TRANSPARENT);
    });
}

TEST_F(CLBStartPaintTest, ASearchWithoutMatchesIsToldAsItWasTyped)
{
    AddPrograms({L"a"});
    OnPage([](ProgramApp& app) {
        const Names searches = {
            L"xyZ", L" ", L"100%s & &C", L"ЩЮ", std::wstring(254, L'Q'), std::wstring(255, L'Q')};
        for (const std::wstring& search : searches) {
            Search(app, search);
            ASSERT_EQ(Count(app), 0);
            EXPECT_EQ(EmptyText(app).text, L"No matches: " + search);
        }
        Search(app, std::wstring(300, L'Q'));
        EXPECT_EQ(EmptyText(app).text.size(), 267u);
    });
}

TEST_F(CLBStartPaintTest, InAnEmptyStartMenuASearchHasNoMatchesEither)
{
    OnPage([](ProgramApp& app) {
        Search(app, L"a");
        EXPECT_EQ(EmptyText(app).text, L"No matches: a");
        Search(app, L"");
        EXPECT_EQ(EmptyText(app).text, L"No applications detected");
    });
}
