// The list of the launcher page.
#pragma once

#include "lists/CLB_SingleLine.h"

class CViewStart;

class CLB_Start : public CLB_SingleLine
{
  public:
    explicit CLB_Start(CViewStart& owningView);

  protected:
    void DrawRow(HDC target, const RECT& rect, uint32_t row, bool selected) override;
};
