// A list of programs of the Start menu: icon and name.
#pragma once

#include "lists/CLB_SingleLine.h"
#include "startmenu/SAppsList.h"

class CLB_Programs : public CLB_SingleLine
{
  protected:
    const CArray<SAppsList*>& programs; // shown, row by row; owned elsewhere

    CLB_Programs(const SListTraits& listTraits, const CRowLook& rowLook,
                 const CArray<SAppsList*>& shownPrograms)
        : CLB_SingleLine(listTraits, rowLook), programs(shownPrograms)
    {}

    void DrawRow(HDC target, const RECT& rect, uint32_t row, bool selected) override;
    virtual void DrawName(CRowPainter& painter, const CStr& name, const RECT& area);

  public:
    uint32_t RecordCount() const override { return programs.Count(); }
};
