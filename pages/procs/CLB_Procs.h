// The list of the processes page.
#pragma once

#include "lists/CLB_SingleLine.h"

class CViewProcs;

class CLB_Procs : public CLB_SingleLine
{
  public:
    explicit CLB_Procs(CViewProcs& owningView);

  protected:
    void DrawRow(HDC target, const RECT& rect, uint32_t row, bool selected) override;
};
