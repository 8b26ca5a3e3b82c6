// A page of the program: a title strip above one owner-drawn list. The pages state only how they differ.
#pragma once

#include "framework/CVireoView.h"
#include "lists/CLB_Base.h"
#include "lists/SystemIcons.h"

// The pages' view ids. The title strip's arrows go round in the order tasks, start, sysinfo, procs.
enum PageId : int32_t
{
    PageTasks = 1,
    PageSysInfo = 2,
    PageStart = 3,
    PageProcs = 4
};

// What tells one page from another, apart from its records.
struct SPageTraits
{
    const wchar_t* title;
    uint32_t showCommand; // the page's own entry in the strip's menu
    PageId previousPage;  // the neighbours in the ring
    PageId nextPage;
    LONG boldExtraHeight; // added to the system font's (negative) height
    LONG normalExtraHeight;
    int activationRow; // what the page is filled with when it is shown: a row to keep, or -1
};

class CListPage : public CVireoView
{
  protected:
    const SPageTraits& traits;
    SSystemIcons icons;
    int largeIconSize = 32;
    HFONT boldFont = nullptr;
    HFONT normalFont = nullptr;
    int headerHeight = 20; // pixels; the real height is known once the fonts exist
    HDC memoryDC = nullptr;

    explicit CListPage(const SPageTraits& pageTraits) : traits(pageTraits) {}

    virtual CLB_Base& List() = 0;
    // Rebuilds the records and tells the list their number. row is the row whose content should stay
    // selected; -1 means the row at the selection mark.
    virtual void Fill(int row) = 0;
    // The refresh of a page whose records have no identity keeps the row number.
    virtual void Refresh();
    // Tells the list that the records were rebuilt and paints it at once.
    void ShowRefilled();
    // A selection mark that is not a row any more moves to the last one.
    void SetRowCount(uint32_t count);

  public:
    ~CListPage() override;

    void Create(int32_t viewId, uint32_t viewMenuBarId, uint32_t viewAcceleratorId) override;
    void OnCreate() override;
    void OnActivate(int32_t previousViewId) override;
    void OnPaint(HDC deviceContext) override;
    void OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    HFONT BoldFont() const { return boldFont; }
    HFONT NormalFont() const { return normalFont; }
    const SSystemIcons& Icons() const { return icons; }
    int HeaderHeight() const { return headerHeight; }

  private:
    void Layout(int width, int height);
    void TapHeader(POINT point);
    LRESULT Notify(const NMHDR& notification);
};
