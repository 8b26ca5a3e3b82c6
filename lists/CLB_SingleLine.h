// A list whose rows are one line of text beside a small icon.
#pragma once

#include "lists/CLB_Base.h"
#include "lists/CRowLook.h"

class CLB_SingleLine : public CLB_Base
{
  protected:
    const CRowLook& look; // of the page or dialog that owns the list

    CLB_SingleLine(const SListTraits& listTraits, const CRowLook& rowLook)
        : CLB_Base(listTraits), look(rowLook)
    {}

    int RowHeight() const override;
};
