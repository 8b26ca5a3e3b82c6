// The application picker: its fonts, its rows and its empty text.
// profiles: pocketpc pocketpc-vga
#include "tests/ui/dialogs/PickerTest.h"
#include "tests/ui/pages/RowDrawing.h"

#include <algorithm>

class CLBSelectAppPaintTest : public PickerTest
{
  protected:
    struct MadeFont
    {
        LOGFONTW description;
        HFONT font;
    };
    std::vector<MadeFont> made; // for the picker
    SPY(CreateFontIndirectW) createFont;

    CLBSelectAppPaintTest()
    {
        createFont.instead = [this](const LOGFONTW* description) {
            HFONT font = createFont.Real(description);
            made.push_back({*description, font});
            return font;
        };
    }

    // The last font of that weight.
    HGDIOBJ Font(LONG weight) const
    {
        const auto found = std::find_if(made.rbegin(), made.rend(), [&](const MadeFont& each) {
            return each.description.lfWeight == weight;
        });
        return found == made.rend() ? nullptr : found->font;
    }
};

TEST_F(CLBSelectAppPaintTest, TheFontsAreTheSystemFontAsItIsAndGoWithThePicker)
{
    AddPrograms({L"a"});
    HGDIOBJ fonts[2] = {};
    InProgram([&](ProgramApp& app) {
        made.clear();
        app.Later([&] {
            ASSERT_EQ(made.size(), 2u);
            LOGFONTW system = {};
            GetObjectW(GetStockObject(SYSTEM_FONT), sizeof system, &system);
            for (const MadeFont& each : made) {
                EXPECT_EQ(each.description.lfHeight, system.lfHeight);
                EXPECT_EQ(each.description.lfUnderline, 0);
                EXPECT_STREQ(each.description.lfFaceName, system.lfFaceName);
            }
            fonts[0] = Font(700);
            fonts[1] = Font(400);
            SendMessageW(app.dialogs->At(0)->Window(), WM_COMMAND, IDCANCEL, 0);
        });
        CStr path;
        CDialogSelectApp::Pick(app.startPrograms, path);
        for (HGDIOBJ font : fonts) {
            LOGFONTW description = {};
            EXPECT_NE(font, nullptr);
            EXPECT_EQ(GetObjectW(font, sizeof description, &description), 0) << "deleted";
        }
    });
}

TEST_F(CLBSelectAppPaintTest, ARowIsTheIconAndTheWholeName)
{
    AddPrograms({L"A&B 100% Ключ"});
    Open([&](Opened& opened) {
        SPY(ImageList_Draw) image;
        RowDrawing drawing(opened.dialog, opened.list, 0);
        drawing.Draw(0);
        constexpr RECT row = RowDrawing::row;
        ASSERT_EQ(image.calls.size(), 1u);
        const auto& [list, index, dc, x, y, style] = image.calls[0];
        int width = 0;
        int height = 0;
        ImageList_GetIconSize(list, &width, &height);
        EXPECT_EQ(index, opened.app.startPrograms.Programs().At(0)->icon);
        EXPECT_EQ(x, row.left + ScaledX(4));
        EXPECT_EQ(y, row.top + (50 - height) / 2);
        EXPECT_EQ(style, static_cast<UINT>(ILD_NORMAL));
        EXPECT_NE(dc, nullptr);
        ASSERT_EQ(drawing.texts.size(), 1u);
        const DrawnText& name = drawing.texts[0];
        EXPECT_EQ(name.text, L"A&B 100% Ключ");
        EXPECT_EQ(name.font, Font(400));
        EXPECT_EQ(name.flags, 0x8024u);
        EXPECT_EQ(name.rect, (RECT{row.left + ScaledX(8) + width, row.top, row.right, row.bottom}));
        EXPECT_EQ(name.colour, GetSysColor(COLOR_WINDOWTEXT));

        drawing.Draw(ODS_SELECTED, [&](HDC target) {
            EXPECT_EQ(GetPixel(target, row.right - 1, row.bottom - 1), GetSysColor(COLOR_HIGHLIGHT));
        });
        EXPECT_EQ(drawing.texts.at(0).colour, GetSysColor(COLOR_HIGHLIGHTTEXT));
    });
}

TEST_F(CLBSelectAppPaintTest, RowsFollowTheStartMenu)
{
    AddPrograms({L"b", L"C", L"a"});
    Open([](Opened& opened) {
        RowDrawing drawing(opened.dialog, opened.list, 0);
        std::vector<std::wstring> names;
        for (UINT row = 0; row < 4; row++) {
            drawing.Draw(0, nullptr, row);
            for (const DrawnText& each : drawing.texts) {
                names.push_back(each.text);
            }
        }
        EXPECT_EQ(names, (std::vector<std::wstring>{L"a", L"b", L"C"})) << "and none behind the last";
    });
}

TEST_F(CLBSelectAppPaintTest, ARowIsALineOfBoldTextAndAtLeastAnIcon)
{
    AddPrograms({L"a"});
    Open([&](Opened& opened) {
        TEXTMETRICW metrics = {};
        HDC screen = GetDC(nullptr);
        HGDIOBJ previous = SelectObject(screen, Font(700));
        GetTextMetricsW(screen, &metrics);
        SelectObject(screen, previous);
        ReleaseDC(nullptr, screen);
        SHFILEINFOW root = {};
        int width = 0;
        int height = 0;
        ImageList_GetIconSize(
            reinterpret_cast<HIMAGELIST>(SHGetFileInfo(L"\\", 0, &root, sizeof root, 0x4001)), &width,
            &height);
        const int text = metrics.tmHeight + metrics.tmExternalLeading + ScaledY(1) + ScaledY(2);
        RECT row = {};
        row.left = LVIR_BOUNDS;
        SendMessageW(opened.list, LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
        EXPECT_EQ(row.bottom - row.top, std::max(text, height + ScaledY(4)));
    });
}

TEST_F(CLBSelectAppPaintTest, WithoutProgramsThatIsToldInTheMiddle)
{
    Open([](Opened& opened) {
        std::vector<DrawnText> texts;
        const SPY(DrawTextW) draw([&](HDC dc, const wchar_t* text, int length, RECT* rect, UINT flags) {
            texts.push_back({text, *rect, flags, nullptr, GetTextColor(dc), GetBkMode(dc)});
            return draw.Real(dc, text, length, rect, flags);
        });
        InvalidateRect(opened.list, nullptr, FALSE);
        UpdateWindow(opened.list);
        ASSERT_EQ(texts.size(), 1u);
        EXPECT_EQ(texts[0].text, L"No applications found");
        EXPECT_EQ(texts[0].flags, 0x8815u);
        const SIZE client = ClientSize(opened.list);
        EXPECT_EQ(texts[0].rect, (RECT{15, 0, client.cx - 15, client.cy}));
        EXPECT_EQ(texts[0].colour, GetSysColor(COLOR_WINDOWTEXT));
    });
}
