// The system information page: its list is still empty.
#pragma once

#include "pages/CListPage.h"
#include "pages/sysinfo/CLB_Memory.h"

class CViewSysInfo : public CListPage
{
    CLB_Memory list;

  public:
    CViewSysInfo();

  protected:
    CLB_Base& List() override { return list; }
    void Fill(int row) override;
};
