// A page of the program: a title strip above one owner-drawn list. The pages state only how they differ.
#pragma once

#include "framework/CVireoView.h"
#include "framework/Gdi.h"
#include "lists/CLB_Base.h"
#include "lists/CRowLook.h"

// What tells one page from another, apart from its records and its entry in the table of the pages.
struct SPageTraits
{
    LONG boldExtraHeight; // added to the system font's (negative) height
    LONG normalExtraHeight;
    int activationRow; // what the page is filled with when it is shown: a row to keep, or -1
};

class CListPage : public CVireoView
{
  protected:
    const SPageTraits& traits;
    CRowLook look;
    int headerHeight = 20;           // pixels; the real height is known once the fonts exist
    MemoryDC memoryDC{HDC(nullptr)}; // compatible with the screen

    explicit CListPage(const SPageTraits& pageTraits) : traits(pageTraits) {}

    virtual CLB_Base& List() = 0;
    // Frees the records and asks the platform for them anew.
    virtual void Collect() = 0;
    // Collects, unless that is under way already: the box of a fatal report lets refreshes in. False then.
    bool Recollect();
    virtual void Refresh();
    // Where the list begins, in pixels from the page's top edge.
    virtual int ListTop() const { return headerHeight; }
    // Lays the page out in its client area.
    virtual void Layout(int width, int height);
    // The control that has the keyboard while the page is shown.
    virtual HWND FocusWindow() { return List().Window(); }
    // Tells the list that the records were rebuilt and paints it at once.
    void ShowRefilled();

  public:
    void Create(int32_t viewId, uint32_t viewMenuBarId, uint32_t viewAcceleratorId) override;
    void OnCreate() override;
    void OnActivate(int32_t previousViewId) override;
    void OnPaint(HDC deviceContext) override;
    void OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Rebuilds the records and tells the list their number. row is the row whose content should stay
    // selected, -1 the row at the selection mark; records without an identity keep the row number.
    virtual void FillContents(int row);

    const CRowLook& Look() const { return look; }
    int HeaderHeight() const { return headerHeight; }

  private:
    bool collecting = false;

    void TapHeader(POINT point);
    LRESULT Notify(const NMHDR& notification);
};
