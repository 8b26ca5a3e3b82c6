// A page's list whose rows are one line of text beside a small icon.
#pragma once

#include "lists/CLB_Base.h"

class CListPage;

class CLB_SingleLine : public CLB_Base
{
    CListPage& page;

  protected:
    CLB_SingleLine(const SListTraits& listTraits, CListPage& owningPage);

    int RowHeight() const override;
};
