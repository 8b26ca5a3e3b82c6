// The launcher page: its list, search box, fonts and layout.
// profiles: pocketpc pocketpc-vga smartphone
#include "tests/support/Fatal.h"
#include "tests/ui/pages/RowDrawing.h"
#include "tests/ui/pages/start/StartPageTest.h"

#include <algorithm>
#include <vector>

class CViewStartListTest : public StartPageTest
{
  protected:
    static int BoldLine(ProgramApp& app)
    {
        TEXTMETRICW metrics = {};
        HDC screen = GetDC(nullptr);
        HGDIOBJ previous = SelectObject(screen, Page(app).Look().BoldFont());
        GetTextMetricsW(screen, &metrics);
        SelectObject(screen, previous);
        ReleaseDC(nullptr, screen);
        return metrics.tmHeight + metrics.tmExternalLeading;
    }

    static void ExpectLaidOut(ProgramApp& app)
    {
        const int header = BoldLine(app) + ScaledY(1) + ScaledY(8);
        const SIZE client = ClientSize(Page(app).Window());
        EXPECT_EQ(OnPageRect(app, List(app)), (RECT{0, header + ScaledY(28), client.cx, client.cy}));
        const int top = header + ScaledY(4);
        EXPECT_EQ(OnPageRect(app, Box(app)),
                  (RECT{ScaledX(4), top, client.cx - ScaledX(4), top + ScaledY(28) - ScaledY(8)}));
        EXPECT_EQ(SendMessageW(List(app), LVM_GETCOLUMNWIDTH, 0, 0), ClientSize(List(app)).cx);
    }
};

TEST_F(CViewStartListTest, TheListIsMadeBeforeTheSearchBox)
{
    const SPY(CreateWindowExW)
        create([&](DWORD ex, const wchar_t* name, const wchar_t* title, DWORD style, int x, int y, int w,
                   int h, HWND parent, HMENU id, HINSTANCE instance, void* parameter) {
            const bool isAtom = reinterpret_cast<UINT_PTR>(name) < 0x10000;
            if (!isAtom && (_wcsicmp(name, L"Edit") == 0 || _wcsicmp(name, L"SysListView32") == 0)) {
                EXPECT_EQ(ex, 0u);
                char text[100] = {};
                snprintf(text, sizeof text, "%ls %lX %u", name, static_cast<unsigned long>(style),
                         static_cast<unsigned>(reinterpret_cast<UINT_PTR>(id)));
                Note(text);
            }
            return create.Real(ex, name, title, style, x, y, w, h, parent, id, instance, parameter);
        });
    InProgram([](ProgramApp&) {});
    const Events all = TakeEvents();
    Events made;
    std::copy_if(all.begin(), all.end(), std::back_inserter(made), [](const std::string& each) {
        return each.rfind("Edit", 0) == 0 || each.rfind("SysListView32", 0) == 0;
    });
    const std::string list = "SysListView32 5000540D 110";
    EXPECT_EQ(made, (Events{list, list, list, "Edit 50800080 175", list})) << "the third page's";
}

TEST_F(CViewStartListTest, TheListIsTheCommonOneAndTheBoxIsSubclassed)
{
    OnPage([](ProgramApp& app) {
        EXPECT_EQ(SendMessageW(List(app), LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0) & 0x20000021, 0x20000021);
        WNDCLASSW edit = {};
        ASSERT_TRUE(GetClassInfoW(nullptr, L"Edit", &edit));
        EXPECT_NE(GetWindowLongPtrW(Box(app), GWLP_WNDPROC), reinterpret_cast<LONG_PTR>(edit.lpfnWndProc));
        EXPECT_NE(GetWindowLongPtrW(Box(app), GWLP_USERDATA), 0);
        EXPECT_EQ(SendMessageW(Box(app), EM_GETLIMITTEXT, 0, 0), 254);
    });
}

TEST_F(CViewStartListTest, TheFontsAreTheSystemFontAsItIs)
{
    OnPage([&](ProgramApp& app) {
        LOGFONTW system = {};
        GetObjectW(GetStockObject(SYSTEM_FONT), sizeof system, &system);
        const struct
        {
            HGDIOBJ font;
            LONG weight;
            BYTE underline;
        } made[] = {{Page(app).Look().BoldFont(), 700, 0},
                    {Page(app).Look().NormalFont(), 400, 0},
                    {Underlined(), 400, 1}};
        ASSERT_EQ(fonts.underlined.size(), 1u) << "no other page's";
        for (const auto& each : made) {
            LOGFONTW font = {};
            ASSERT_NE(GetObjectW(each.font, sizeof font, &font), 0);
            EXPECT_EQ(font.lfWeight, each.weight);
            EXPECT_EQ(font.lfUnderline, each.underline);
            EXPECT_EQ(font.lfHeight, system.lfHeight);
            EXPECT_STREQ(font.lfFaceName, system.lfFaceName);
        }
    });
}

TEST_F(CViewStartListTest, TheUnderlinedFontAloneOutlivesThePage)
{
    HGDIOBJ bold = nullptr;
    HGDIOBJ normal = nullptr;
    OnPage([&](ProgramApp& app) {
        bold = Page(app).Look().BoldFont();
        normal = Page(app).Look().NormalFont();
    });
    LOGFONTW font = {};
    EXPECT_EQ(GetObjectW(bold, sizeof font, &font), 0);
    EXPECT_EQ(GetObjectW(normal, sizeof font, &font), 0);
    EXPECT_NE(GetObjectW(Underlined(), sizeof font, &font), 0);
    EXPECT_TRUE(fonts.Delete());
}

TEST_F(CViewStartListTest, BeforeThePageIsMadeBothHeightsAreTwenty)
{
    struct BarePage : CViewStart
    {
        using CViewStart::CViewStart;
        using CViewStart::ListTop;
    };
    CStartPrograms programs;
    const BarePage page(programs);
    EXPECT_EQ(page.HeaderHeight(), 20);
    EXPECT_EQ(page.ListTop(), 40);
    EXPECT_TRUE(fonts.all.empty());
}

TEST_F(CViewStartListTest, ListAndBoxShareThePage)
{
    AddPrograms({L"a"});
    OnPage([](ProgramApp& app) { ExpectLaidOut(app); });
}

TEST_F(CViewStartListTest, TheyFollowThePagesSizeAndTheSelectionStaysInView)
{
    menu.AddMany(40);
    OnPage([](ProgramApp& app) {
        HWND page = Page(app).Window();
        const SIZE whole = ClientSize(page);
        SendMessageW(List(app), WM_KEYDOWN, VK_END, 1);
        for (const SIZE& size : {SIZE{whole.cx - 30, whole.cy / 2}, whole, SIZE{whole.cx / 2, whole.cy}}) {
            SetWindowPos(page, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
            ExpectLaidOut(app);
            ExpectSelected(app, 39);
        }
    });
}

TEST_F(CViewStartListTest, ARowIsALineOfBoldTextAndAtLeastAnIcon)
{
    AddPrograms({L"a"});
    OnPage([](ProgramApp& app) {
        RECT row = {};
        row.left = LVIR_BOUNDS;
        SendMessageW(List(app), LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
        const int text = BoldLine(app) + ScaledY(1) + ScaledY(2);
        const int icon = Page(app).Look().Icons().height + ScaledY(4);
        EXPECT_EQ(row.bottom - row.top, std::max(text, icon));
    });
}

TEST_F(CViewStartListTest, TheIconsAreTheSystemsSmallOnes)
{
    OnPage([](ProgramApp& app) {
        const SSystemIcons& icons = Page(app).Look().Icons();
        SHFILEINFOW root = {};
        const DWORD_PTR list = SHGetFileInfo(L"\\", 0, &root, sizeof root, 0x4001);
        EXPECT_EQ(icons.list, reinterpret_cast<HIMAGELIST>(list));
        EXPECT_EQ(icons.rootIcon, root.iIcon);
        EXPECT_EQ(icons.LargeSize(), icons.width < 17 ? 32 : 48);
    });
}

TEST_F(CViewStartListTest, TheFocusNeverStaysInTheList)
{
    AddPrograms({L"a", L"b"});
    OnPage([](ProgramApp& app) {
        EXPECT_EQ(GetFocus(), Box(app));
        SetFocus(List(app));
        EXPECT_EQ(GetFocus(), Box(app));
        SetFocus(Page(app).Window());
        EXPECT_EQ(GetFocus(), Box(app));
        SetFocus(app.MainWindow());
        EXPECT_EQ(GetFocus(), Box(app));
    });
}

TEST_F(CViewStartListTest, ANewSearchFetchesTheFocusOnlyFromElsewhere)
{
    AddPrograms({L"a", L"b"});
    OnPage([](ProgramApp& app) {
        std::vector<HWND> asked;
        const SPY(SetFocus) focus([&](HWND window) {
            asked.push_back(window);
            return focus.Real(window);
        });
        Type(app, L"a");
        EXPECT_EQ(asked, std::vector<HWND>{});
        focus.Real(nullptr);
        Type(app, L"b");
        EXPECT_EQ(asked, (std::vector<HWND>{List(app), Box(app)}));
        EXPECT_EQ(GetFocus(), Box(app));
    });
}

TEST_F(CViewStartListTest, AColumnThatCannotBeMadeAgainIsFatal)
{
    const auto fail = [&] {
        OnPage([](ProgramApp& app) {
            const SPY(SendMessageW) send([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
                return message == LVM_INSERTCOLUMNW ? LRESULT{-1}
                                                    : send.Real(window, message, wParam, lParam);
            });
            Search(app, L"a");
        });
    };
    EXPECT_FATAL_AT(fail(), L"CLB_Start::RecreateColumns", 53, L"Error");
}
