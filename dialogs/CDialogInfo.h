// The read-only text dialog that shows every report of the program.
#pragma once

#include "framework/CStr.h"
#include "framework/CVireoDialog.h"
#include "resources/ids.h"

class CDialogInfo : public CVireoDialog
{
    const CStr* text; // the caller's, alive while the dialog runs

  public:
    explicit CDialogInfo(const CStr& shownText) : text(&shownText) {}

    void OnInitDialog() override;
    void OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control) override;
    INT_PTR DialogProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Shows a text until the user closes it.
    static int Show(const CStr& shownText);

  private:
    HWND Edit() const { return GetDlgItem(window, IDC_INFORMATION_TEXT); }
    void FillWithEdit();
    void ShowFromStart();
};
