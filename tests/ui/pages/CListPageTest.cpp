// CListPage: what a page adds to its list.
// profiles: pocketpc pocketpc-vga
#include "pages/CListPage.h"
#include "lists/RowMeasures.h"
#include "resources/ids.h"
#include "tests/ui/TestList.h"
#include "tests/ui/UiTest.h"

class CListPageTest : public UiTest
{
  protected:
    static constexpr SPageTraits ownTraits = {0, 2, 0};

    class Page : public CListPage
    {
      public:
        TestList list;
        uint32_t rows = 40;
        std::vector<int> filled; // the rows to keep

        Page() : CListPage(ownTraits)
        {
            list.drawRow = [](HDC, const RECT&, uint32_t, bool) {};
        }
        void OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control) override
        {
            Note("page OnCommand " + Numbers(commandId, notifyCode, control));
            CListPage::OnCommand(commandId, notifyCode, control);
        }
        void FillContents(int row) override
        {
            filled.push_back(row);
            CListPage::FillContents(row);
        }
        using CListPage::Refresh;

      protected:
        CLB_Base& List() override { return list; }
        void Collect() override { list.records = rows; }
    };

    // Runs a test on an active page with the id 3.
    static void WithPage(const std::function<void(TestApp&, Page&)>& test)
    {
        InApp([&](TestApp& app) {
            auto* page = new Page;
            page->Create(3, IDB_START, 0);
            app.AddView(page);
            app.ActivateView(3);
            TakeEvents();
            test(app, *page);
        });
    }

    static LRESULT NotifyPage(const Page& page, UINT_PTR from, UINT code)
    {
        NMHDR notification = {page.list.Window(), from, code};
        return SendMessageW(page.Window(), WM_NOTIFY, from, reinterpret_cast<LPARAM>(&notification));
    }

    static int ColumnWidth(const Page& page)
    {
        return static_cast<int>(SendMessageW(page.list.Window(), LVM_GETCOLUMNWIDTH, 0, 0));
    }

    static RECT InPage(const Page& page, HWND window)
    {
        RECT rect = WindowRect(window);
        MapWindowPoints(nullptr, page.Window(), reinterpret_cast<POINT*>(&rect), 2);
        return rect;
    }
};

TEST_F(CListPageTest, TheListLiesBelowTheStripFromTheStart)
{
    WithPage([](TestApp& app, Page& page) {
        const SIZE client = ClientSize(app.MainWindow());
        EXPECT_EQ(page.HeaderHeight(), TitleStripHeight(page.Look().BoldFont()));
        EXPECT_EQ(InPage(page, page.list.Window()), (RECT{0, page.HeaderHeight(), client.cx, client.cy}));
        EXPECT_NE(page.list.buffer.DC(), nullptr);
    });
}

TEST_F(CListPageTest, ANewSizeMovesTheListAndItsColumnAndShowsTheMark)
{
    WithPage([](TestApp&, Page& page) {
        page.list.SelectRow(30);
        const SPY(SendMessageW) send([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
            if (message == LVM_DELETECOLUMN || message == LVM_ENSUREVISIBLE) {
                Note((message == LVM_DELETECOLUMN ? "delete " : "show ") + std::to_string(wParam));
            }
            return send.Real(window, message, wParam, lParam);
        });
        MoveWindow(page.Window(), 0, 0, 150, 130, FALSE);
        EXPECT_EQ(TakeEvents(), (Events{"delete 0", "show 30"}));
        EXPECT_EQ(InPage(page, page.list.Window()), (RECT{0, page.HeaderHeight(), 150, 130}));
        EXPECT_EQ(ColumnWidth(page), ClientSize(page.list.Window()).cx);
        page.list.SelectRow(-1);
        MoveWindow(page.Window(), 0, 0, 151, 130, FALSE);
        EXPECT_EQ(TakeEvents(), (Events{"delete 0"}));
        EXPECT_EQ(ColumnWidth(page), ClientSize(page.list.Window()).cx);
    });
}

TEST_F(CListPageTest, ANewSizeOfAPageThatIsNotShownLeavesTheColumnToItsShowing)
{
    WithPage([](TestApp& app, Page& shown) {
        int columns = 0;
        const SPY(SendMessageW) send([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
            columns += message == LVM_INSERTCOLUMNW && window != shown.list.Window();
            return send.Real(window, message, wParam, lParam);
        });
        auto* page = new Page;
        page->Create(4, IDB_START, 0);
        app.AddView(page);
        EXPECT_EQ(columns, 1) << "the one that the list is made with";
        MoveWindow(page->Window(), 0, 0, 150, 130, FALSE);
        EXPECT_EQ(columns, 1);
        EXPECT_EQ(InPage(*page, page->list.Window()), (RECT{0, page->HeaderHeight(), 150, 130}));
        app.ActivateView(4);
        EXPECT_EQ(ColumnWidth(*page), ClientSize(page->list.Window()).cx);
    });
}

TEST_F(CListPageTest, ThereIsOneColumnAsWideAsTheListAfterEachRefill)
{
    WithPage([](TestApp&, Page& page) {
        for (const uint32_t rows : {3U, 50U, 0U, 4U}) {
            page.rows = rows;
            page.Refresh();
            EXPECT_EQ(page.list.Count(), rows);
            EXPECT_EQ(ColumnWidth(page), ClientSize(page.list.Window()).cx) << rows;
            LVCOLUMNW second = {};
            second.mask = LVCF_WIDTH;
            EXPECT_FALSE(
                SendMessageW(page.list.Window(), LVM_GETCOLUMNW, 1, reinterpret_cast<LPARAM>(&second)));
        }
    });
}

TEST_F(CListPageTest, TapAndHoldIsConsumed)
{
    WithPage([](TestApp&, Page& page) {
        EXPECT_EQ(NotifyPage(page, IDC_LIST, 1000), 1);
        EXPECT_TRUE(TakeEvents().empty());
    });
}

TEST_F(CListPageTest, ActivatingARowIsACommandAndOtherNotificationsAreNot)
{
    WithPage([](TestApp&, Page& page) {
        EXPECT_EQ(NotifyPage(page, IDC_LIST, static_cast<UINT>(LVN_ITEMACTIVATE)), 0);
        EXPECT_EQ(TakeEvents().front(), "page OnCommand 114,0,0");
        EXPECT_EQ(NotifyPage(page, IDC_LIST, static_cast<UINT>(LVN_ITEMCHANGED)), 0);
        EXPECT_EQ(NotifyPage(page, IDC_LIST, static_cast<UINT>(NM_CLICK)), 0);
        EXPECT_TRUE(TakeEvents().empty());
    });
}

TEST_F(CListPageTest, RowRequestsReachTheList)
{
    WithPage([](TestApp&, Page& page) {
        page.list.rowHeight = 31;
        MEASUREITEMSTRUCT measure = {};
        measure.CtlType = ODT_LISTVIEW;
        SendMessageW(page.Window(), WM_MEASUREITEM, IDC_LIST, reinterpret_cast<LPARAM>(&measure));
        EXPECT_EQ(measure.itemHeight, 31U);
        std::vector<uint32_t> drawn;
        page.list.drawRow = [&](HDC, const RECT&, uint32_t row, bool) { drawn.push_back(row); };
        DRAWITEMSTRUCT draw = {};
        draw.CtlType = ODT_LISTVIEW;
        draw.itemID = 6;
        SendMessageW(page.Window(), WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw));
        EXPECT_EQ(drawn, std::vector<uint32_t>{6});
    });
}

TEST_F(CListPageTest, ActivationFillsThePageSelectsItsFirstRowAndFocusesTheList)
{
    WithPage([](TestApp&, Page& page) {
        EXPECT_EQ(page.filled, std::vector<int>{0});
        EXPECT_EQ(page.list.SelectedRow(), 0);
        const LRESULT state =
            SendMessageW(page.list.Window(), LVM_GETITEMSTATE, 0, LVIS_SELECTED | LVIS_FOCUSED);
        EXPECT_EQ(state, LVIS_SELECTED | LVIS_FOCUSED);
        EXPECT_EQ(SendMessageW(page.list.Window(), LVM_GETTOPINDEX, 0, 0), 0);
        EXPECT_EQ(GetFocus(), page.list.Window());
    });
}

TEST_F(CListPageTest, ThePagesFocusIsItsLists)
{
    WithPage([](TestApp& app, Page& page) {
        SetFocus(app.MainWindow());
        EXPECT_EQ(GetFocus(), app.MainWindow());
        SetFocus(page.Window());
        EXPECT_EQ(GetFocus(), page.list.Window());
    });
}

TEST_F(CListPageTest, ThePageDrawsItsTitleInBold)
{
    WithPage([](TestApp&, Page& page) {
        std::wstring title;
        const SPY(DrawTextW) draw([&](HDC target, const wchar_t* text, int length, RECT* rect, UINT format) {
            title = text;
            EXPECT_EQ(format, 0x8024U);
            EXPECT_EQ(GetCurrentObject(target, OBJ_FONT), static_cast<HGDIOBJ>(page.Look().BoldFont()));
            return draw.Real(target, text, length, rect, format);
        });
        const RECT strip = {0, 0, 500, page.HeaderHeight()};
        InvalidateRect(page.Window(), &strip, FALSE);
        UpdateWindow(page.Window());
        EXPECT_EQ(draw.calls.size(), 1U);
        EXPECT_EQ(title, L"Start");
        LOGFONTW font = {};
        GetObjectW(page.Look().BoldFont(), sizeof font, &font);
        EXPECT_EQ(font.lfWeight, FW_BOLD);
    });
}

TEST_F(CListPageTest, ARefreshKeepsTheNumberOfTheSelectedRow)
{
    WithPage([](TestApp&, Page& page) {
        for (const int row : {7, 39, 0}) {
            page.list.SelectRow(row);
            page.filled.clear();
            SendMessageW(page.Window(), WM_COMMAND, CMD_REFRESH, 0);
            EXPECT_EQ(page.filled, std::vector<int>{row});
            EXPECT_EQ(page.list.SelectedRow(), row);
        }
        page.list.SelectRow(-1);
        page.filled.clear();
        page.Refresh();
        EXPECT_EQ(page.filled, std::vector<int>{-1});
    });
}

TEST_F(CListPageTest, AMarkBehindTheLastRowIsNoRowToKeep)
{
    WithPage([](TestApp&, Page& page) {
        page.list.SelectRow(30);
        page.list.SetCount(30);
        ASSERT_EQ(page.list.SelectionMark(), 30);
        page.filled.clear();
        page.Refresh();
        EXPECT_EQ(page.filled, std::vector<int>{-1});
    });
}

TEST_F(CListPageTest, AShrinkingListMovesTheMarkToItsLastRow)
{
    WithPage([](TestApp&, Page& page) {
        page.list.SelectRow(30);
        page.rows = 31;
        page.Refresh();
        EXPECT_EQ(page.list.SelectedRow(), 30) << "it is still a row";
        for (const uint32_t rows : {30U, 10U, 1U}) {
            page.rows = rows;
            page.Refresh();
            const auto last = static_cast<int>(rows) - 1;
            EXPECT_EQ(page.list.SelectionMark(), last);
            const LRESULT state = SendMessageW(page.list.Window(), LVM_GETITEMSTATE,
                                               static_cast<WPARAM>(last), LVIS_SELECTED | LVIS_FOCUSED);
            EXPECT_EQ(state, LVIS_SELECTED | LVIS_FOCUSED) << rows;
        }
        page.rows = 0;
        page.Refresh();
        EXPECT_EQ(page.list.SelectionMark(), -1);
        page.rows = 5;
        page.Refresh();
        EXPECT_EQ(page.list.SelectedRow(), -1) << "a new row is not selected by itself";
    });
}

TEST_F(CListPageTest, ActivationPaintsTheStripAtOnce)
{
    WithPage([](TestApp&, Page& page) {
        ValidateRect(page.Window(), nullptr);
        std::vector<RECT> areas;
        const SPY(BeginPaint) begin([&](HWND window, PAINTSTRUCT* paint) {
            HDC target = begin.Real(window, paint);
            if (window == page.Window()) {
                areas.push_back(paint->rcPaint);
            }
            return target;
        });
        page.OnActivate(1);
        EXPECT_EQ(areas, (std::vector<RECT>{{0, 0, ClientSize(page.Window()).cx, page.HeaderHeight()}}));
        EXPECT_FALSE(GetUpdateRect(page.Window(), nullptr, FALSE));
    });
}
