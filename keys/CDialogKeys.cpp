// The hardware keys dialog of a Pocket PC.
#include "keys/CDialogKeys.h"

#include "framework/CVireoApp.h"
#include "framework/Scale.h"
#include "resources/ids.h"

static constexpr int marginAt96Dpi = 4;

int CDialogKeys::Show(CStartPrograms& startPrograms)
{
    CDialogKeys dialog(startPrograms);
    return dialog.StartDialog(IDD_KEYS, IDB_KEYS, IDA_KEYS, true);
}

void CDialogKeys::OnInitDialog()
{
    SetWindowTextW(window, L"Hardware keys");
    press.Fill(Control(IDC_PRESS_ACTION), keyActionCount);
    hold.Fill(Control(IDC_HOLD_ACTION), buttonHoldActionCount);
    Layout();
    keys.Load();
    if (keys.Count() == 0) {
        CVireoApp::Current()->ShowNotice(L"No keys found");
        return;
    }
    HWND list = Control(IDC_KEY_LIST);
    for (uint32_t i = 0; i < keys.Count(); ++i) {
        const wchar_t* name = keys.At(i).name;
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
    }
    SendMessageW(list, LB_SETCURSEL, 0, 0);
    ShowSelectedKey();
}

void CDialogKeys::OnDestroy()
{
    keys.Clear();
}

void CDialogKeys::OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM /*control*/)
{
    switch (commandId) {
    case IDOK:
    case CMD_DIALOG_ACTION:
        Confirm();
        break;
    case IDCANCEL:
        End(IDCANCEL);
        break;
    case CMD_ACTIVATE_ITEM:
        PassEnterOn();
        break;
    case CMD_SHOW_KEY:
        ShowSelectedKey();
        break;
    default:
        ControlChanged(commandId, notifyCode);
        break;
    }
}

INT_PTR CDialogKeys::DialogProc(UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    if (message == WM_SIZE) {
        Layout();
    }
    return 0;
}

SHardwareKey* CDialogKeys::SelectedKey()
{
    const LRESULT row = SendMessageW(Control(IDC_KEY_LIST), LB_GETCARETINDEX, 0, 0);
    return row >= 0 && row < static_cast<LRESULT>(keys.Count()) ? &keys.At(static_cast<uint32_t>(row))
                                                                : nullptr;
}

void CDialogKeys::ShowSelectedKey()
{
    if (const SHardwareKey* key = SelectedKey()) {
        press.Show(key->pressAction, key->pressApplication);
        hold.Show(key->holdAction, key->holdApplication);
    }
}

void CDialogKeys::ControlChanged(uint32_t controlId, uint32_t notifyCode)
{
    if (controlId == IDC_KEY_LIST && notifyCode == LBN_SELCHANGE) {
        ShowSelectedKey();
    }
    const bool isPress = controlId == IDC_PRESS_ACTION;
    SHardwareKey* key = SelectedKey();
    if (notifyCode != CBN_SELCHANGE || (!isPress && controlId != IDC_HOLD_ACTION) || key == nullptr) {
        return;
    }
    const bool taken = isPress ? press.Take(window, programs, key->pressAction, key->pressApplication)
                               : hold.Take(window, programs, key->holdAction, key->holdApplication);
    if (taken) {
        ShowSelectedKey();
    }
}

// Enter: from the buttons to what a press does, and to a drop-down list itself.
void CDialogKeys::PassEnterOn()
{
    HWND focus = GetFocus();
    if (focus == Control(IDC_KEY_LIST)) {
        SetFocus(Control(IDC_PRESS_ACTION));
    } else {
        SendMessageW(focus, WM_KEYDOWN, VK_RETURN, 0);
    }
}

// What could not be saved is not lost: the dialog stays.
void CDialogKeys::Confirm()
{
    if (keys.Save()) {
        End(IDOK);
    }
}

static SIZE SizeOf(HWND control)
{
    RECT rect = {};
    GetWindowRect(control, &rect);
    return {rect.right - rect.left, rect.bottom - rect.top};
}

// The drop-down lists keep their height, with which that of the open list stays as it is, too.
void CDialogKeys::Layout()
{
    RECT client = {};
    GetClientRect(window, &client);
    const int margin = ScaleY(marginAt96Dpi);
    const int left = ScaleX(marginAt96Dpi);
    const int row = SizeOf(Control(IDC_PRESS_ACTION)).cy + margin;
    const int room = client.bottom - 2 * row - 2 * margin;
    const int listHeight = room > 0 ? room : 0;
    MoveWindow(Control(IDC_KEY_LIST), left, margin, client.right - 2 * left, listHeight, TRUE);
    const int labelWidth = SizeOf(Control(IDC_HOLD_LABEL)).cx; // the wider of the two
    const int top = margin + listHeight + margin;
    PlaceRow(IDC_PRESS_LABEL, IDC_PRESS_ACTION, top, labelWidth);
    PlaceRow(IDC_HOLD_LABEL, IDC_HOLD_ACTION, top + row, labelWidth);
}

void CDialogKeys::PlaceRow(int labelId, int listId, int top, int labelWidth)
{
    RECT client = {};
    GetClientRect(window, &client);
    const int margin = ScaleX(marginAt96Dpi);
    const int listLeft = margin + labelWidth + margin;
    const int listHeight = SizeOf(Control(listId)).cy;
    const int labelHeight = SizeOf(Control(labelId)).cy;
    MoveWindow(Control(labelId), margin, top + (listHeight - labelHeight) / 2, labelWidth, labelHeight, TRUE);
    MoveWindow(Control(listId), listLeft, top, client.right - margin - listLeft, listHeight, TRUE);
}
