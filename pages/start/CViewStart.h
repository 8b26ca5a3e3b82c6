// The launcher page: the programs of the Start menu, searched as the user types, and started.
#pragma once

#include "pages/CListPage.h"
#include "pages/start/CLB_Start.h"
#include "pages/start/CSearchBox.h"

class CStartPrograms;

class CViewStart : public CListPage
{
    CStartPrograms& programs;
    CArray<SAppsList*> shown; // those that the search leaves; owned by programs
    CSearchBox search;
    HFONT underlinedFont = nullptr; // never deleted, on purpose
    int searchHeight = 20;          // pixels; the real height is known once the page is created
    bool rescan = false;            // the Start menu is to be read anew before the next search
    CLB_Start list;

  public:
    explicit CViewStart(CStartPrograms& startPrograms);

    void OnCreate() override;
    void OnActivate(int32_t previousViewId) override;
    void OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control) override;
    // Searches, selects the first row, and leaves the focus in the search box.
    void FillContents(int row) override;

    uint32_t ProgramCount() const { return shown.Count(); }
    const SAppsList& Program(uint32_t row) const { return *shown.At(row); }

  protected:
    CLB_Base& List() override { return list; }
    void Collect() override;
    void Refresh() override;
    int ListTop() const override { return headerHeight + searchHeight; }
    void Layout(int width, int height) override;
    HWND FocusWindow() override { return search.Window(); }

  private:
    SAppsList* Selected() const; // null without one
    void PassKeyToList(WPARAM key) const;
};
