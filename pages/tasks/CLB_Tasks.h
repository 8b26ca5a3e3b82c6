// The list of the running applications page.
#pragma once

#include "lists/CLB_SingleLine.h"

class CViewTasks;

class CLB_Tasks : public CLB_SingleLine
{
    CViewTasks& view;

  public:
    explicit CLB_Tasks(CViewTasks& owningView);

  protected:
    void DrawRow(HDC target, const RECT& rect, uint32_t row, bool selected) override;
};
