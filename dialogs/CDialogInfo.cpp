// The read-only text dialog.
#include "dialogs/CDialogInfo.h"

int CDialogInfo::Show(const CStr& shownText)
{
    CDialogInfo dialog(shownText);
    return dialog.StartDialog(IDD_INFORMATION, IDB_INFORMATION, IDA_INFORMATION, true);
}

void CDialogInfo::OnInitDialog()
{
    SetWindowTextW(window, L"Information");
    SetWindowTextW(Edit(), *text);
    FillWithEdit();
}

void CDialogInfo::OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM /*control*/)
{
    if (EndOnCloseCommand(commandId)) {
        return;
    }
    switch (commandId) {
    case CMD_TEXT_ENTER:
        End(IDOK);
        break;
    case CMD_TEXT_DOWN:
        SendMessageW(Edit(), EM_LINESCROLL, 0, 1);
        break;
    case CMD_TEXT_UP:
        SendMessageW(Edit(), EM_LINESCROLL, 0, -1);
        break;
    case IDC_INFORMATION_TEXT:
        // The dialog manager selects the whole text whenever it gives the edit box the focus.
        if (notifyCode == EN_SETFOCUS) {
            ShowFromStart();
        }
        break;
    default:
        break;
    }
}

INT_PTR CDialogInfo::DialogProc(UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    if (message == WM_SIZE) {
        FillWithEdit();
    }
    return 0;
}

void CDialogInfo::FillWithEdit()
{
    FillClient(IDC_INFORMATION_TEXT);
    ShowFromStart();
}

void CDialogInfo::ShowFromStart()
{
    SendMessageW(Edit(), EM_SETSEL, 0, 0);
    HideCaret(Edit());
}
