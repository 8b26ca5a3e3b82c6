// The list of the system information page: each row a gauge.
#pragma once

#include "framework/CRecords.h"
#include "lists/CLB_Base.h"
#include "lists/CRowLook.h"
#include "pages/sysinfo/CGaugePictures.h"

class CLB_Memory : public CLB_Base
{
    const CRowLook& look;
    const CRecords<SSysInfo>& rows;
    const CGaugePictures& pictures;
    const MemoryDC& memory; // what the pictures are drawn through

  public:
    CLB_Memory(const CRowLook& rowLook, const CRecords<SSysInfo>& records,
               const CGaugePictures& gaugePictures, const MemoryDC& pictureContext);

    uint32_t RecordCount() const override { return rows.Count(); }

  protected:
    int RowHeight() const override;
    void DrawRow(HDC target, const RECT& rect, uint32_t row, bool selected) override;
};
