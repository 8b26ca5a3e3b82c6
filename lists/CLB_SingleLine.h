// A list whose rows are one line of text beside a small icon.
#pragma once

#include "lists/CLB_Base.h"
#include "lists/CRowLook.h"

class CRowPainter;

class CLB_SingleLine : public CLB_Base
{
  protected:
    const CRowLook& look; // of the page or dialog that owns the list

    CLB_SingleLine(const SListTraits& listTraits, const CRowLook& rowLook)
        : CLB_Base(listTraits), look(rowLook)
    {}

    int RowHeight() const override;
    // A name at the left and a size in bytes at the right end of area; a long name ends before the size.
    void DrawNameAndSize(CRowPainter& painter, const wchar_t* name, uint64_t bytes, RECT area) const;
};
