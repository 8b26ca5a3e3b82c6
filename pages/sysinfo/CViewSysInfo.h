// The system information page: gauges of memory, storage, cards and battery, and two reports on them.
#pragma once

#include "pages/CListPage.h"
#include "pages/sysinfo/CLB_Memory.h"

class CViewSysInfo : public CListPage
{
    CRecords<SSysInfo> rows{initialRows};
    CGaugePictures pictures;
    CLB_Memory list;

  public:
    explicit CViewSysInfo(CResources& pictureContainer);

    void OnActivate(int32_t previousViewId) override;
    void OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control) override;

    uint32_t RowCount() const { return rows.Count(); }
    const SSysInfo& Row(uint32_t row) const { return *rows.At(row); }

  protected:
    CLB_Base& List() override { return list; }
    void Collect() override;

  private:
    static constexpr uint32_t initialRows = 10;

    void SelectIfThere(int row);
};
