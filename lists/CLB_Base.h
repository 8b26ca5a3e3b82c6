// The owner-drawn, back-buffered list control of every page: virtual, one full-width column, rows drawn on
// demand.
#pragma once

#include "lists/CBackBuffer.h"

class CStr;

// What tells one list from another, apart from its rows.
struct SListTraits
{
    const wchar_t* constructName; // names of its methods in fatal reports
    const wchar_t* recreateColumnsName;
    bool separators; // a strip between rows, continued below the last one
};

// The owner window must forward WM_MEASUREITEM and WM_DRAWITEM. The selected row is the selection mark, not
// the control's own item state.
class CLB_Base
{
  protected:
    WNDPROC originalProcedure = nullptr;
    HWND window = nullptr;
    HWND owner = nullptr; // the window that row requests go to
    CBackBuffer buffer;
    const SListTraits& traits;

    explicit CLB_Base(const SListTraits& listTraits) : traits(listTraits) {}

  public:
    CLB_Base(const CLB_Base&) = delete;
    CLB_Base& operator=(const CLB_Base&) = delete;
    virtual ~CLB_Base();

    // Creates the control over parent's client area; fatal when it cannot be made. Row heights are asked for
    // meanwhile, so whatever RowHeight needs must be there.
    void Construct(HWND parent);
    // Makes the one column span the control again; needed after each resize and refill.
    void RecreateColumns(bool deleteFirst);
    // Row requests of the control; both act only for a list view and say whether they did. A request for a
    // row that has no record (any more) draws nothing: boxes that are shown between freeing the records and
    // counting them anew let the control ask for rows that it still believes in.
    bool MeasureItem(MEASUREITEMSTRUCT& measure);
    bool DrawItem(const DRAWITEMSTRUCT& draw);

    // The number of records that rows can be drawn from now.
    virtual uint32_t RecordCount() const = 0;

    HWND Window() const { return window; }
    // What the control says of itself. Its selection mark may lie behind the last row.
    uint32_t Count() const;
    int SelectionMark() const;
    int TopRow() const;
    int RowsPerPage() const;
    void SetCount(uint32_t count);
    // The row at the selection mark, or -1 when the mark is not a row of the list.
    int SelectedRow() const;
    // Selects, focuses, marks and shows a row; -1 only clears the mark.
    void SelectRow(int row);
    void ShowSelectedRow();
    // Moves a mark that lies behind the last row to it.
    void ClampSelection();
    // Paints the whole list now.
    void Repaint();
    // Erases a device context's client rectangle the way the control erases itself.
    void EraseLikeList(HDC target) const;

  protected:
    virtual int RowHeight() const = 0; // pixels
    virtual void DrawRow(HDC target, const RECT& rect, uint32_t row, bool selected) = 0;
    // The text shown in place of rows; empty for none.
    virtual void EmptyText(CStr& text) const;
    // The list's own part in a message, before the control's own handling (true: the message is consumed,
    // with this result) and after it. The latter does not come when the list went meanwhile.
    virtual bool BeforeControl(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
    virtual void AfterControl(UINT message, WPARAM wParam, LPARAM lParam);

  private:
    LRESULT Original(UINT message, WPARAM wParam, LPARAM lParam) const;
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Paint();
    void PaintRows(HDC screen, const RECT& paintRect) const;
    void PaintSeparators(int topRow, int slots) const;
    void PaintEmpty(HDC screen) const;
    RECT RowRect(int row) const;
    static CLB_Base* ListOf(HWND listWindow);
    static LRESULT CALLBACK ListWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
};
