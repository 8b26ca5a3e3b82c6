// Painting one row against painting the whole list.
#include "bench/Row.h"
#include "bench/Stopwatch.h"
#include "bench/page/Measurements.h"

namespace bench {

static int rowsDrawn;
static WNDPROC pageProcedure;

static LRESULT CALLBACK CountRows(HWND page, UINT message, WPARAM wParam, LPARAM lParam)
{
    rowsDrawn += message == WM_DRAWITEM ? 1 : 0;
    return CallWindowProcW(pageProcedure, page, message, wParam, lParam);
}

// A null rectangle means all of the list.
static double Paint(HWND list, const RECT* rect)
{
    const Stopwatch watch;
    InvalidateRect(list, rect, FALSE);
    UpdateWindow(list);
    return watch.Milliseconds();
}

static int RowsDrawn(HWND page, HWND list, const RECT* rect)
{
    pageProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(page, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountRows)));
    rowsDrawn = 0;
    Paint(list, rect);
    SetWindowLongPtrW(page, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(pageProcedure));
    return rowsDrawn;
}

void MeasureRepaint(const CListPage& shown, const std::string& name)
{
    HWND list = BenchApp::ListOf(shown);
    HWND page = shown.Window();
    Paint(list, nullptr); // nothing that was invalid before counts
    RECT row = {};
    row.left = LVIR_BOUNDS;
    SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(SendMessageW(list, LVM_GETTOPINDEX, 0, 0) + 2),
                 reinterpret_cast<LPARAM>(&row));

    const int ofRow = RowsDrawn(page, list, &row);
    const int ofList = RowsDrawn(page, list, nullptr);
    std::printf("Rows drawn for one %s's rectangle\t%d\t-\t1\t%s\t%d for the whole list\n", name.c_str(),
                ofRow, ofRow == 1 ? "met" : "missed", ofList);

    Pairs pairs;
    const Stopwatch whole;
    while (whole.Milliseconds() < rowMs / 2) {
        const double one = Paint(list, &row);
        pairs.Add(one, Paint(list, nullptr));
    }
    Row(("Painting one " + name + " / the whole list").c_str(), pairs, noBudget, "%.3f ms / %.3f ms",
        pairs.Ones().Median(), pairs.Others().Median());
}

} // namespace bench
