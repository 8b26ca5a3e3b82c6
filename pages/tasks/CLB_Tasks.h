// The list of the running applications page.
#pragma once

#include "lists/CLB_SingleLine.h"
#include "pages/tasks/CTaskRecords.h"

class CLB_Tasks : public CLB_SingleLine
{
    const CTaskRecords& tasks;

  public:
    CLB_Tasks(const CRowLook& rowLook, const CTaskRecords& taskRecords);

  protected:
    uint32_t RecordCount() const override { return tasks.Count(); }
    void DrawRow(HDC target, const RECT& rect, uint32_t row, bool selected) override;
};
