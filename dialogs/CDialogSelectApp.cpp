// The application picker.
#include "dialogs/CDialogSelectApp.h"

#include "resources/ids.h"
#include "startmenu/CStartPrograms.h"

CDialogSelectApp::CDialogSelectApp(CStartPrograms& startPrograms, CStr& chosenPath)
    : programs(startPrograms), chosen(chosenPath), list(look, startPrograms.Programs())
{}

bool CDialogSelectApp::Pick(CStartPrograms& startPrograms, CStr& chosenPath)
{
    CDialogSelectApp dialog(startPrograms, chosenPath);
    return dialog.StartDialogNoTemplate(IDB_SELECT_APP, 0, true) == IDOK;
}

void CDialogSelectApp::OnInitDialog()
{
    SetWindowTextW(window, L"Select an application");
    look.Create(0, 0);
    list.Construct(window);
    list.SetCount(list.RecordCount());
    FillWithList(); // now that it is known whether the rows need a scroll bar
    SetFocus(list.Window());
    if (list.Count() > 0) {
        list.SelectRow(0);
    }
}

void CDialogSelectApp::OnCommand(uint32_t commandId, uint32_t /*notifyCode*/, LPARAM /*control*/)
{
    switch (commandId) {
    case IDOK:
    case CMD_DIALOG_ACTION:
        Choose();
        break;
    case IDCANCEL:
        End(IDCANCEL);
        break;
    default:
        break; // the activation of a row, too: only the soft key chooses
    }
}

// Without a program that could be chosen the picker stays.
void CDialogSelectApp::Choose()
{
    const int row = list.SelectedRow();
    if (row >= 0 && row < static_cast<int>(list.RecordCount())) {
        chosen = programs.Programs().At(static_cast<uint32_t>(row))->path;
        End(IDOK);
    }
}

INT_PTR CDialogSelectApp::DialogProc(UINT message, WPARAM /*wParam*/, LPARAM lParam)
{
    switch (message) {
    case WM_SIZE:
        if (list.Window() != nullptr) {
            FillWithList();
        }
        return 0;
    case WM_MEASUREITEM:
        return list.MeasureItem(*reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)) ? TRUE : FALSE;
    case WM_DRAWITEM:
        return list.DrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)) ? TRUE : FALSE;
    case WM_NOTIFY:
        return Notify(*reinterpret_cast<const NMHDR*>(lParam));
    default:
        return 0;
    }
}

void CDialogSelectApp::FillWithList()
{
    FillClient(IDC_LIST);
    list.RecreateColumns(true);
    list.ShowSelectedRow();
}

INT_PTR CDialogSelectApp::Notify(const NMHDR& notification)
{
    if (notification.code == LVN_ITEMACTIVATE) {
        OnCommand(CMD_ACTIVATE_ITEM, 0, 0);
    }
    if (notification.code == LVN_ODFINDITEMW) {
        SetWindowLongPtrW(window, DWLP_MSGRESULT, -1); // a letter finds no row, where 0 would be the first
        return TRUE;
    }
    if (notification.code != GN_CONTEXTMENU) {
        return 0;
    }
    SetWindowLongPtrW(window, DWLP_MSGRESULT, 1); // no context menu follows
    return TRUE;
}
