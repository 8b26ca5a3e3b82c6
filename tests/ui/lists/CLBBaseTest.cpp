// CLB_Base: its control, its column, its selection and its back buffer.
#include "tests/support/Fatal.h"
#include "tests/ui/TestList.h"
#include "tests/ui/UiTest.h"

#include <memory>

static WNDPROC realProcedure;

// Stands for the control's own procedure.
static LRESULT CALLBACK NotingProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = CallWindowProcW(realProcedure, window, message, wParam, lParam);
    if (message == WM_SIZE) {
        Note("original size");
        return 815;
    }
    if (message == WM_ERASEBKGND) {
        Note("original erase");
    }
    return result;
}

class CLBBaseTest : public UiTest
{
  protected:
    TestApp app;
    TestList list;
    std::unique_ptr<ListOwner> owner = std::make_unique<ListOwner>(list);

    CLBBaseTest() { app.instance = GetModuleHandleW(nullptr); }

    void Construct(uint32_t rows = 0)
    {
        list.Construct(owner->window);
        list.SetCount(rows);
    }

    void WatchOriginal()
    {
        realProcedure = list.originalProcedure;
        list.originalProcedure = NotingProcedure;
    }

    LRESULT Resize(int width, int height)
    {
        return SendMessageW(list.Window(), WM_SIZE, SIZE_RESTORED, MAKELPARAM(width, height));
    }

    int Mark() const { return static_cast<int>(SendMessageW(list.Window(), LVM_GETSELECTIONMARK, 0, 0)); }

    // Widths of its columns, -1 where there is none.
    std::vector<int> Columns() const
    {
        std::vector<int> widths;
        for (WPARAM i = 0; i < 2; i++) {
            LVCOLUMNW column = {};
            column.mask = LVCF_WIDTH;
            const auto parameter = reinterpret_cast<LPARAM>(&column);
            widths.push_back(SendMessageW(list.Window(), LVM_GETCOLUMNW, i, parameter) ? column.cx : -1);
        }
        return widths;
    }
};

TEST_F(CLBBaseTest, TheControlCoversItsParentAndIsVirtual)
{
    void* asked = nullptr;
    const SPY(CreateWindowExW)
        create([&](DWORD exStyle, const wchar_t* className, const wchar_t* title, DWORD style, int x, int y,
                   int width, int height, HWND parent, HMENU menu, HINSTANCE instance, void* parameter) {
            EXPECT_EQ(exStyle, 0U);
            EXPECT_STREQ(className, L"SysListView32");
            EXPECT_EQ(title, nullptr);
            EXPECT_EQ(style, 0x5000540DU);
            EXPECT_EQ(x, 0);
            EXPECT_EQ(y, 0);
            EXPECT_EQ(width, ListOwner::width);
            EXPECT_EQ(height, ListOwner::height);
            EXPECT_EQ(parent, owner->window);
            EXPECT_EQ(reinterpret_cast<UINT_PTR>(menu), 110U);
            EXPECT_EQ(instance, app.Instance());
            asked = parameter;
            return create.Real(exStyle, className, title, style, x, y, width, height, parent, menu, instance,
                               parameter);
        });
    Construct();
    EXPECT_EQ(create.calls.size(), 1U);
    EXPECT_EQ(asked, static_cast<CLB_Base*>(&list));
}

TEST_F(CLBBaseTest, TheControlKnowsItsObjectAndHasTheExtendedStyles)
{
    std::vector<std::pair<int, LONG_PTR>> set;
    const SPY(SetWindowLongPtrW) setLong([&](HWND window, int index, LONG_PTR value) {
        set.emplace_back(index, value);
        return setLong.Real(window, index, value);
    });
    Construct();
    ASSERT_GE(set.size(), 2U);
    EXPECT_EQ(set[0].first, GWLP_USERDATA);
    EXPECT_EQ(set[0].second, reinterpret_cast<LONG_PTR>(static_cast<CLB_Base*>(&list)));
    EXPECT_EQ(set[1].first, GWLP_WNDPROC);
    EXPECT_NE(list.originalProcedure, nullptr);
    EXPECT_NE(reinterpret_cast<LONG_PTR>(list.originalProcedure), set[1].second);
    const LRESULT styles = SendMessageW(list.Window(), LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0);
    EXPECT_EQ(styles & 0x20000021, 0x20000021);
}

TEST_F(CLBBaseTest, WithoutAWindowTheListIsFatal)
{
    const auto construct = [this] {
        const SPY(CreateWindowExW) create([](DWORD, const wchar_t*, const wchar_t*, DWORD, int, int, int, int,
                                             HWND, HMENU, HINSTANCE, void*) { return HWND{nullptr}; });
        Construct();
    };
    EXPECT_FATAL_AT(construct(), L"TestList::Construct", 214, L"Error");
}

TEST_F(CLBBaseTest, ItsOneColumnIsAsWideAsTheClientArea)
{
    Construct();
    EXPECT_EQ(Columns(), (std::vector<int>{ListOwner::width, -1}));
    MoveWindow(list.Window(), 0, 20, 100, 60, TRUE);
    list.RecreateColumns(true);
    EXPECT_EQ(Columns(), (std::vector<int>{100, -1}));
}

TEST_F(CLBBaseTest, TheColumnIsInsertedLeftAlignedAfterTheOldOneWent)
{
    Construct();
    const SPY(SendMessageW) send([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == LVM_DELETECOLUMN) {
            Note("delete " + std::to_string(wParam));
        }
        if (message == LVM_INSERTCOLUMNW) {
            const auto* column = reinterpret_cast<const LVCOLUMNW*>(lParam);
            Note("insert " + Numbers(wParam, column->mask, column->fmt));
        }
        return send.Real(window, message, wParam, lParam);
    });
    list.RecreateColumns(true);
    EXPECT_EQ(TakeEvents(), (Events{"delete 0", "insert 0,11,0"}));
    SendMessageW(list.Window(), LVM_DELETECOLUMN, 0, 0);
    TakeEvents();
    list.RecreateColumns(false);
    EXPECT_EQ(TakeEvents(), (Events{"insert 0,11,0"}));
}

TEST_F(CLBBaseTest, AColumnThatCannotBeInsertedIsFatal)
{
    Construct();
    const auto recreate = [this] {
        const SPY(SendMessageW) send([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
            return message == LVM_INSERTCOLUMNW ? -1 : send.Real(window, message, wParam, lParam);
        });
        list.RecreateColumns(true);
    };
    EXPECT_FATAL_AT(recreate(), L"TestList::RecreateColumns", 53, L"Error");
}

TEST_F(CLBBaseTest, OnlyListViewsAreMeasured)
{
    list.rowHeight = 33;
    MEASUREITEMSTRUCT measure = {};
    measure.CtlType = ODT_LISTBOX;
    measure.itemHeight = 5;
    EXPECT_FALSE(list.MeasureItem(measure));
    EXPECT_EQ(measure.itemHeight, 5U);
    measure.CtlType = 102;
    EXPECT_TRUE(list.MeasureItem(measure));
    EXPECT_EQ(measure.itemHeight, 33U);
}

TEST_F(CLBBaseTest, OnlyListViewsAreDrawn)
{
    std::vector<std::pair<uint32_t, bool>> drawn;
    list.drawRow = [&](HDC, const RECT&, uint32_t row, bool selected) { drawn.emplace_back(row, selected); };
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_LISTBOX;
    draw.itemID = 4;
    EXPECT_FALSE(list.DrawItem(draw));
    EXPECT_TRUE(drawn.empty());
    draw.CtlType = 102;
    EXPECT_TRUE(list.DrawItem(draw));
    draw.itemState = ODS_SELECTED;
    EXPECT_TRUE(list.DrawItem(draw));
    EXPECT_EQ(drawn, (std::vector<std::pair<uint32_t, bool>>{{4, false}, {4, true}}));
}

TEST_F(CLBBaseTest, TheControlAsksForTheRowHeight)
{
    list.rowHeight = 27;
    Construct(2);
    ASSERT_FALSE(owner->measured.empty());
    RECT row = {LVIR_BOUNDS, 0, 0, 0};
    SendMessageW(list.Window(), LVM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&row));
    EXPECT_EQ(row.bottom - row.top, 27);
}

TEST_F(CLBBaseTest, ASizeGoesToTheControlFirstAndItsResultIsReturned)
{
    Construct();
    WatchOriginal();
    const SPY(CreateCompatibleBitmap) bitmap([&](HDC screen, int width, int height) {
        Note("bitmap " + Numbers(static_cast<uint64_t>(width), static_cast<uint64_t>(height), 0));
        return bitmap.Real(screen, width, height);
    });
    EXPECT_EQ(Resize(70, 50), 815);
    EXPECT_EQ(TakeEvents(), (Events{"original size", "bitmap 70,50,0"}));
    EXPECT_EQ(Resize(70, 50), 815);
    EXPECT_EQ(TakeEvents(), (Events{"original size"}));
}

TEST_F(CLBBaseTest, TheBackBufferIsReplacedOnlyByOneOfAnotherSize)
{
    Construct();
    EXPECT_EQ(list.buffer.DC(), nullptr);
    Resize(70, 50);
    HDC dc = list.buffer.DC();
    HBITMAP bitmap = list.buffer.Bitmap();
    // What every memory context holds before anything is selected.
    HDC fresh = CreateCompatibleDC(nullptr);
    HGDIOBJ previous = GetCurrentObject(fresh, OBJ_BITMAP);
    DeleteDC(fresh);
    ASSERT_NE(dc, nullptr);
    BITMAP fields = {};
    GetObjectW(bitmap, sizeof fields, &fields);
    EXPECT_EQ(fields.bmWidth, 70);
    EXPECT_EQ(fields.bmHeight, 50);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_BITMAP), bitmap);
    Resize(70, 50);
    EXPECT_EQ(list.buffer.DC(), dc);
    EXPECT_EQ(list.buffer.Bitmap(), bitmap);

    for (const SIZE size : {SIZE{71, 50}, SIZE{71, 51}}) {
        dc = list.buffer.DC();
        bitmap = list.buffer.Bitmap();
        const SPY(SelectObject) select;
        const SPY(DeleteObject) deleteObject;
        const SPY(DeleteDC) deleteDC;
        Resize(size.cx, size.cy);
        ASSERT_FALSE(select.calls.empty());
        EXPECT_EQ(select.calls[0], std::make_tuple(dc, previous));
        ASSERT_EQ(deleteObject.calls.size(), 1U);
        EXPECT_EQ(std::get<0>(deleteObject.calls[0]), bitmap);
        ASSERT_EQ(deleteDC.calls.size(), 1U);
        EXPECT_EQ(std::get<0>(deleteDC.calls[0]), dc);
        GetObjectW(list.buffer.Bitmap(), sizeof fields, &fields);
        EXPECT_EQ(fields.bmWidth, size.cx);
        EXPECT_EQ(fields.bmHeight, size.cy);
        EXPECT_EQ(list.buffer.Width(), size.cx);
        EXPECT_EQ(list.buffer.Height(), size.cy);
    }
}

TEST_F(CLBBaseTest, ErasingIsLeftToTheBackBuffer)
{
    Construct();
    WatchOriginal();
    HDC screen = GetDC(list.Window());
    EXPECT_EQ(SendMessageW(list.Window(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(screen), 0), 1);
    ReleaseDC(list.Window(), screen);
    EXPECT_TRUE(TakeEvents().empty());
    list.EraseLikeList(list.buffer.DC());
    EXPECT_EQ(TakeEvents(), (Events{"original erase"}));
}

TEST_F(CLBBaseTest, TheSelectedRowIsTheMarkAsLongAsItIsARow)
{
    Construct(5);
    EXPECT_EQ(list.Count(), 5U);
    list.SelectRow(3);
    EXPECT_EQ(Mark(), 3);
    EXPECT_EQ(list.SelectedRow(), 3);
    const LRESULT state = SendMessageW(list.Window(), LVM_GETITEMSTATE, 3, LVIS_SELECTED | LVIS_FOCUSED);
    EXPECT_EQ(state, LVIS_SELECTED | LVIS_FOCUSED);
    list.SetCount(2);
    EXPECT_EQ(list.SelectedRow(), -1);
    list.ClampSelection();
    EXPECT_EQ(list.SelectedRow(), 1);
    list.SelectRow(-1);
    EXPECT_EQ(list.SelectedRow(), -1);
}

TEST_F(CLBBaseTest, AMarkOfAnEmptyListIsCleared)
{
    Construct(3);
    list.SelectRow(2);
    list.SetCount(0);
    list.ClampSelection();
    EXPECT_EQ(Mark(), -1);
}

TEST_F(CLBBaseTest, ASelectedRowIsScrolledIntoView)
{
    Construct(40);
    list.SelectRow(30);
    const auto top = static_cast<int>(SendMessageW(list.Window(), LVM_GETTOPINDEX, 0, 0));
    EXPECT_GT(top, 0);
    EXPECT_LE(top, 30);
    EXPECT_GE(top + static_cast<int>(SendMessageW(list.Window(), LVM_GETCOUNTPERPAGE, 0, 0)), 31);
}

TEST_F(CLBBaseTest, TheControlOutlivesItsObject)
{
    auto shortLived = std::make_unique<TestList>();
    ListOwner ownerOfIt(*shortLived);
    shortLived->Construct(ownerOfIt.window);
    HWND control = shortLived->Window();
    const SPY(DeleteDC) deleteDC;
    SendMessageW(control, WM_SIZE, 0, MAKELPARAM(30, 30));
    HDC buffer = shortLived->buffer.DC();
    shortLived.reset();
    ASSERT_EQ(deleteDC.calls.size(), 1U);
    EXPECT_EQ(std::get<0>(deleteDC.calls[0]), buffer);
    EXPECT_EQ(GetWindowLongPtrW(control, GWLP_USERDATA), 0);
    EXPECT_EQ(SendMessageW(control, LVM_GETITEMCOUNT, 0, 0), 0);
}

// As when what the control notifies its page of ends the program.
TEST_F(CLBBaseTest, AListThatGoesDuringAMessageIsLeftAlone)
{
    auto shortLived = std::make_unique<TestList>();
    ListOwner ownerOfIt(*shortLived);
    shortLived->Construct(ownerOfIt.window);
    HWND control = shortLived->Window();
    const SPY(CreateCompatibleDC) context;
    const SPY(CallWindowProcW)
        call([&](WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
            const LRESULT result = call.Real(procedure, window, message, wParam, lParam);
            if (message == WM_SIZE) {
                shortLived.reset();
            }
            return result;
        });
    SendMessageW(control, WM_SIZE, 0, MAKELPARAM(30, 30));
    EXPECT_EQ(shortLived, nullptr);
    EXPECT_TRUE(context.calls.empty()) << "no buffer of the new size";
    EXPECT_EQ(SendMessageW(control, LVM_GETITEMCOUNT, 0, 0), 0);
}
