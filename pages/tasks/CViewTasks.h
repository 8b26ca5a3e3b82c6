// The page of the running applications: lists them, switches to them, closes them and reports on their
// windows.
#pragma once

#include "lists/CListPage.h"
#include "pages/tasks/CLB_Tasks.h"
#include "pages/tasks/STaskInfo.h"

class CViewTasks : public CListPage
{
    CArray<STaskInfo*>* tasks = nullptr; // owns the records
    bool firstShow = true;
    CLB_Tasks list;

  public:
    CViewTasks();
    ~CViewTasks() override;

    void OnCreate() override;
    void OnActivate(int32_t previousViewId) override;
    void OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Rebuilds the records, keeping the task of a row selected; -1 means the row at the selection mark.
    void FillList(int row);
    const STaskInfo& Task(uint32_t row) const { return *tasks->At(row); }
    uint32_t TaskCount() const { return tasks->Count(); }

    // The report on any window in the information dialog; a notice when the window has gone. Nothing for the
    // all-ones handle, which stands for no window.
    static void ShowWindowReport(HWND window);

  protected:
    CLB_Base& List() override { return list; }
    void Fill(int row) override { FillList(row); }
    void Refresh() override;

  private:
    HWND WindowOfRow(int row) const;
    void Rebuild(HWND keepSelected);
    static void SwitchTo(HWND window);
    void Close(int row, HWND window);
    static void ShowWindowsList(HWND window);
};
