// The list of the system information page.
#pragma once

#include "lists/CLB_SingleLine.h"

class CViewSysInfo;

class CLB_Memory : public CLB_SingleLine
{
  public:
    explicit CLB_Memory(CViewSysInfo& owningView);

  protected:
    void DrawRow(HDC target, const RECT& rect, uint32_t row, bool selected) override;
};
