// The processes page: lists them, reports on them and ends them.
#pragma once

#include "pages/CListPage.h"
#include "pages/RowCopy.h"
#include "pages/procs/CLB_Procs.h"

class CViewProcs : public CListPage
{
    CRecords<SProcInfo> processes{initialProcesses};
    CLB_Procs list;

  public:
    CViewProcs();

    void OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control) override;

    uint32_t ProcessCount() const { return processes.Count(); }
    const SProcInfo& Process(uint32_t row) const { return *processes.At(row); }

  protected:
    CLB_Base& List() override { return list; }
    void Collect() override;

  private:
    static constexpr uint32_t initialProcesses = 10;

    void ShowDetails(int row) const;
    void End(const SRowCopy<SProcIdentity>& process);
};
