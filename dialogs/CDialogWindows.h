// The tree of the top-level windows of one process and their child windows.
#pragma once

#include "framework/CStr.h"
#include "framework/CVireoDialog.h"

class CDialogWindows : public CVireoDialog
{
    DWORD processId;
    CStr caption;   // of the root item
    HWND preselect; // null for none
    HTREEITEM root = nullptr;
    HTREEITEM preselectedItem = nullptr;
    bool anyFound = false;
    WNDPROC originalTreeProcedure = nullptr;

  public:
    CDialogWindows(DWORD listedProcessId, const wchar_t* rootCaption, HWND preselectedWindow);

    void OnInitDialog() override;
    void OnDestroy() override;
    void OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control) override;
    INT_PTR DialogProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Shows the windows of a process until the user closes the dialog; preselectedWindow may be null.
    static int Show(DWORD listedProcessId, const wchar_t* rootCaption, HWND preselectedWindow);

  private:
    HWND Tree() const;
    void InsertTopLevelWindows();
    void InsertWindow(HWND listed, HTREEITEM parent);
    HTREEITEM Insert(const wchar_t* text, LPARAM data, HTREEITEM parent);
    void ShowSelectedReport();
    static BOOL CALLBACK InsertWindowsProc(HWND listed, LPARAM dialog);
    static LRESULT CALLBACK TreeProc(HWND tree, UINT message, WPARAM wParam, LPARAM lParam);
};
