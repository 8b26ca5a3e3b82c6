// The list of the launcher page.
#pragma once

#include "startmenu/CLB_Programs.h"

class CSearchBox;

class CLB_Start : public CLB_Programs
{
    const CSearchBox& search;
    const HFONT& underlinedFont; // made after the list

  public:
    CLB_Start(const CRowLook& rowLook, const CArray<SAppsList*>& shownPrograms, const CSearchBox& searchBox,
              const HFONT& matchFont);

  protected:
    // With the part that was searched for underlined.
    void DrawName(CRowPainter& painter, const CStr& name, const RECT& area) override;
    void EmptyText(CStr& text) const override;
    void AfterControl(UINT message, WPARAM wParam, LPARAM lParam) override;
};
