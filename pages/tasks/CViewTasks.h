// The page of the running applications: lists them, switches to them, closes them and reports on their
// windows.
#pragma once

#include "pages/CListPage.h"
#include "pages/RowCopy.h"
#include "pages/tasks/CLB_Tasks.h"
#include "pages/tasks/CTaskRecords.h"

class CViewTasks : public CListPage
{
    CTaskRecords tasks;
    bool firstShow = true;
    CLB_Tasks list;

  public:
    explicit CViewTasks(CStartPrograms& programs);

    void OnActivate(int32_t previousViewId) override;
    void OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    void FillContents(int row) override { FillList(row); }
    // Rebuilds the records, keeping the task of a row selected; -1 means the row at the selection mark.
    void FillList(int row);
    const STaskInfo& Task(uint32_t row) const { return *tasks.At(row); }
    uint32_t TaskCount() const { return tasks.Count(); }

  protected:
    CLB_Base& List() override { return list; }
    void Collect() override;

  private:
    HWND WindowOfRow(int row) const; // null for a row without a task
    void Rebuild(HWND keepSelected);
    static void SwitchTo(HWND window);
    void Close(const SRowCopy<HWND>& task);
    static void ShowWindowsList(HWND window);
};
