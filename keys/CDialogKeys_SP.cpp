// The hardware keys dialog of a Smartphone.
#include "keys/CDialogKeys_SP.h"

#include "framework/CVireoApp.h"
#include "keys/ShellKeys.h"
#include "resources/ids.h"

CDialogKeys_SP::CDialogKeys_SP(CStartPrograms& startPrograms, SHomeKey& homeKey)
    : programs(startPrograms), current(homeKey), chosen(homeKey)
{}

int CDialogKeys_SP::Show(CStartPrograms& startPrograms, SHomeKey& homeKey)
{
    CDialogKeys_SP dialog(startPrograms, homeKey);
    return dialog.StartDialog(IDD_KEYS_SP, IDB_KEYS, IDA_KEYS, true);
}

void CDialogKeys_SP::OnInitDialog()
{
    SetWindowTextW(window, L"Hardware keys");
    HWND list = GetDlgItem(window, IDC_HOME_ACTION);
    SetFocus(list);
    choice.Fill(list, keyActionCount);
    ShowCommand();
}

void CDialogKeys_SP::OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM /*control*/)
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
        SendMessageW(GetFocus(), WM_KEYDOWN, VK_RETURN, 0);
        break;
    case CMD_SHOW_KEY:
        ShowCommand();
        break;
    case IDC_HOME_ACTION:
        if (notifyCode == CBN_SELCHANGE) {
            ActionChanged();
        }
        break;
    default:
        break;
    }
}

INT_PTR CDialogKeys_SP::DialogProc(UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    if (message == WM_SIZE) {
        static const int controls[] = {IDC_HOME_ACTION};
        StretchControls(window, controls, 1);
    }
    return 0;
}

// A refused command stays chosen all the same: it is what a confirmation saves.
void CDialogKeys_SP::ShowCommand()
{
    if (chosen.command == KeyActionCloseCurrent || chosen.command == KeyActionCloseOthers) {
        choice.Select(KeyActionLeave);
        CVireoApp::Current()->ShowNotice(L"Command is disabled for Smartphone");
    } else {
        choice.Show(static_cast<int32_t>(chosen.command), chosen.file);
    }
}

void CDialogKeys_SP::ActionChanged()
{
    auto command = static_cast<int32_t>(chosen.command);
    if (!choice.Take(window, programs, command, chosen.file)) {
        return;
    }
    chosen.command = static_cast<uint32_t>(command);
    Place();
    ShowCommand();
}

// What could not be saved is not lost: the dialog stays.
void CDialogKeys_SP::Confirm()
{
    if (!chosen.Save()) {
        CVireoApp::Current()->ShowNotice(L"Registry error: Can't open key");
        return;
    }
    Bind();
    End(IDOK);
}

// A key that was bound is the program's already. One that was not is captured, also when nothing is bound to
// it now: it has nothing to do then.
void CDialogKeys_SP::Bind()
{
    HWND mainWindow = CVireoApp::Current()->MainWindow();
    if (current.command == KeyActionLeave) {
        CaptureHomeKey(mainWindow, L"CDialogKeys_SP::HandleCommand");
    } else if (chosen.command == KeyActionLeave) {
        ReleaseHomeKey(mainWindow);
    }
    current = chosen;
}
