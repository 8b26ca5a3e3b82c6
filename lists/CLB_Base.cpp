// The list control: creation, column and selection. Its window procedure and painting are in
// CLB_BasePaint.cpp.
#include "lists/CLB_Base.h"

#include "framework/Assert.h"
#include "framework/CStr.h"
#include "framework/CVireoApp.h"
#include "framework/WindowObject.h"
#include "resources/ids.h"

static constexpr DWORD listStyle = WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS |
                                   LVS_OWNERDRAWFIXED | LVS_OWNERDATA | LVS_NOCOLUMNHEADER;
static_assert(listStyle == 0x5000540D);
static constexpr DWORD listExtendedStyle = LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT | LVS_EX_CE_THEME;
static constexpr UINT columnMask = LVCF_FMT | LVCF_WIDTH | LVCF_SUBITEM;
static_assert(columnMask == 11);
// The lines that the fatal reports name.
static constexpr int constructLine = 214;
static constexpr int recreateColumnsLine = 53;

CLB_Base::~CLB_Base()
{
    if (window != nullptr) {
        // The control outlives this object by the rest of its parent's destruction.
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(originalProcedure));
        ForgetWindowObject(window);
    }
}

void CLB_Base::Construct(HWND parent)
{
    owner = parent;
    RECT client = {};
    GetClientRect(parent, &client);
    window = CreateWindowExW(0, WC_LISTVIEWW, nullptr, listStyle, client.left, client.top,
                             client.right - client.left, client.bottom - client.top, parent,
                             reinterpret_cast<HMENU>(static_cast<UINT_PTR>(IDC_LIST)),
                             CVireoApp::Current()->Instance(), this);
    Assert(window != nullptr, ErrorGeneric, traits.constructName, constructLine);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    originalProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ListWindowProc)));

    const LRESULT extended = SendMessageW(window, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0);
    SendMessageW(window, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, extended | static_cast<LPARAM>(listExtendedStyle));
    RecreateColumns(false);
}

void CLB_Base::RecreateColumns(bool deleteFirst)
{
    if (deleteFirst) {
        SendMessageW(window, LVM_DELETECOLUMN, 0, 0);
    }
    RECT client = {};
    GetClientRect(window, &client);
    LVCOLUMNW column = {};
    column.mask = columnMask; // without a header there is no text
    column.fmt = LVCFMT_LEFT;
    column.cx = client.right - client.left;
    const LRESULT inserted = SendMessageW(window, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    Assert(inserted != -1, ErrorGeneric, traits.recreateColumnsName, recreateColumnsLine);
}

bool CLB_Base::MeasureItem(MEASUREITEMSTRUCT& measure)
{
    if (measure.CtlType != ODT_LISTVIEW) {
        return false;
    }
    measure.itemHeight = static_cast<UINT>(RowHeight());
    return true;
}

bool CLB_Base::DrawItem(const DRAWITEMSTRUCT& draw)
{
    if (draw.CtlType != ODT_LISTVIEW) {
        return false;
    }
    if (draw.itemID < RecordCount()) {
        DrawRow(draw.hDC, draw.rcItem, draw.itemID, (draw.itemState & ODS_SELECTED) != 0);
    }
    return true;
}

uint32_t CLB_Base::Count() const
{
    return static_cast<uint32_t>(SendMessageW(window, LVM_GETITEMCOUNT, 0, 0));
}

int CLB_Base::SelectionMark() const
{
    return static_cast<int>(SendMessageW(window, LVM_GETSELECTIONMARK, 0, 0));
}

int CLB_Base::TopRow() const
{
    return static_cast<int>(SendMessageW(window, LVM_GETTOPINDEX, 0, 0));
}

int CLB_Base::RowsPerPage() const
{
    return static_cast<int>(SendMessageW(window, LVM_GETCOUNTPERPAGE, 0, 0));
}

void CLB_Base::SetCount(uint32_t count)
{
    SendMessageW(window, LVM_SETITEMCOUNT, count, 0);
}

int CLB_Base::SelectedRow() const
{
    // The control keeps a mark beyond the rows that are left when the list shrinks.
    const int mark = SelectionMark();
    return mark >= 0 && mark < static_cast<int>(Count()) ? mark : -1;
}

void CLB_Base::SelectRow(int row)
{
    if (row >= 0) {
        LVITEMW item = {};
        item.state = item.stateMask = LVIS_FOCUSED | LVIS_SELECTED;
        SendMessageW(window, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    }
    SendMessageW(window, LVM_SETSELECTIONMARK, 0, row);
    ShowSelectedRow();
}

void CLB_Base::ShowSelectedRow()
{
    const int row = SelectedRow();
    if (row >= 0) {
        SendMessageW(window, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
    }
}

void CLB_Base::ClampSelection()
{
    const int last = static_cast<int>(Count()) - 1;
    if (SelectionMark() > last) {
        SelectRow(last);
    }
}

void CLB_Base::Repaint()
{
    InvalidateRect(window, nullptr, FALSE);
    UpdateWindow(window);
}

void CLB_Base::EraseLikeList(HDC target) const
{
    Original(WM_ERASEBKGND, reinterpret_cast<WPARAM>(target), 0);
}

void CLB_Base::EmptyText(CStr& /*text*/) const {}

bool CLB_Base::BeforeControl(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/, LRESULT& /*result*/)
{
    return false;
}

void CLB_Base::AfterControl(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/) {}
