// The processes page: its list is still empty.
#pragma once

#include "pages/CListPage.h"
#include "pages/procs/CLB_Procs.h"

class CViewProcs : public CListPage
{
    CLB_Procs list;

  public:
    CViewProcs();

  protected:
    CLB_Base& List() override { return list; }
    void Fill(int row) override;
};
