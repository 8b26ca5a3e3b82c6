// A list in a window of its own that forwards its row requests and writes them down.
#pragma once

#include "lists/CLB_Base.h"
#include "tests/ui/TestApp.h"

#include <functional>
#include <string>
#include <vector>

class TestList : public CLB_Base
{
  public:
    static constexpr COLORREF background = RGB(250, 240, 230);

    int rowHeight = 20;
    uint32_t records = UINT32_MAX; // as many as are asked for
    std::wstring emptyText;
    std::function<void(HDC, const RECT&, uint32_t, bool)> drawRow;

    explicit TestList(bool separators = true);

    // A row's colour as drawn when drawRow is not set.
    static COLORREF RowColour(uint32_t row) { return RGB(1 + row, 100, 50); }

    using CLB_Base::buffer;
    using CLB_Base::originalProcedure;

  protected:
    int RowHeight() const override { return rowHeight; }
    uint32_t RecordCount() const override { return records; }
    void DrawRow(HDC target, const RECT& rect, uint32_t row, bool selected) override;
    void EmptyText(CStr& text) const override;
};

// The owner of a list: a visible window with a client area of 160 x 120.
class ListOwner
{
    TestList& list;

  public:
    static constexpr int width = 160;
    static constexpr int height = 120;
    static constexpr int left = 10; // on the screen
    static constexpr int top = 60;

    HWND window = nullptr;
    std::vector<DRAWITEMSTRUCT> requests; // of WM_DRAWITEM
    std::vector<WPARAM> requestControls;  // their wParam
    std::vector<MEASUREITEMSTRUCT> measured;

    explicit ListOwner(TestList& ownList);
    ~ListOwner();
    ListOwner(const ListOwner&) = delete;
    ListOwner& operator=(const ListOwner&) = delete;

    // The rows asked for since the last call.
    std::vector<uint32_t> TakeRows();

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
};
