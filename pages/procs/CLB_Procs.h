// The list of the processes page.
#pragma once

#include "framework/CRecords.h"
#include "lists/CLB_SingleLine.h"
#include "pages/procs/SProcInfo.h"

class CLB_Procs : public CLB_SingleLine
{
    const CRecords<SProcInfo>& processes;

  public:
    CLB_Procs(const CRowLook& rowLook, const CRecords<SProcInfo>& processRecords);

    uint32_t RecordCount() const override { return processes.Count(); }

  protected:
    void DrawRow(HDC target, const RECT& rect, uint32_t row, bool selected) override;
};
