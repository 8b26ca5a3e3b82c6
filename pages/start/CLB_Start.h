// The list of the launcher page; it has no records yet.
#pragma once

#include "lists/CLB_SingleLine.h"

class CLB_Start : public CLB_SingleLine
{
  public:
    explicit CLB_Start(const CRowLook& rowLook);

  protected:
    uint32_t RecordCount() const override { return 0; }
    void DrawRow(HDC target, const RECT& rect, uint32_t row, bool selected) override;
};
