// The launcher page: its list is still empty.
#pragma once

#include "pages/CListPage.h"
#include "pages/start/CLB_Start.h"

class CViewStart : public CListPage
{
    CLB_Start list;

  public:
    CViewStart();

  protected:
    CLB_Base& List() override { return list; }
    void Collect() override {}
};
