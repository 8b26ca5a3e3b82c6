// The application picker: the user chooses a program of the Start menu.
#pragma once

#include "dialogs/CLB_SelectApp.h"
#include "framework/CVireoDialog.h"

class CStartPrograms;

class CDialogSelectApp : public CVireoDialog
{
    CStartPrograms& programs;
    CStr& chosen; // the caller's
    CRowLook look;
    CLB_SelectApp list;

  public:
    CDialogSelectApp(CStartPrograms& startPrograms, CStr& chosenPath);

    void OnInitDialog() override;
    void OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control) override;
    INT_PTR DialogProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Runs the picker. True with the path of the chosen shortcut; false, and chosenPath as it was, when the
    // user cancels.
    static bool Pick(CStartPrograms& startPrograms, CStr& chosenPath);

  private:
    void Choose();
    void FillWithList();
    INT_PTR Notify(const NMHDR& notification);
};
