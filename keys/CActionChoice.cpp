// One drop-down list of actions: what it shows, and what is taken over from it.
#include "keys/CActionChoice.h"

#include "dialogs/CDialogSelectApp.h"
#include "keys/KeyActions.h"

static constexpr int openLines = 9; // as many fit on a screen that lies on its side

void CActionChoice::Fill(HWND dropDown, uint32_t count)
{
    list = dropDown;
    for (uint32_t action = 0; action < count; ++action) {
        SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(keyActionTexts[action]));
    }
    actionCount = static_cast<int32_t>(count);
    Select(KeyActionLeave);
    MakeRoomForLines();
}

// The template has room for a line or two. The height that is set is that with the list open; closed, the
// control keeps its own.
void CActionChoice::MakeRoomForLines()
{
    RECT rect = {};
    GetWindowRect(list, &rect);
    const auto lineHeight = static_cast<int>(SendMessageW(list, CB_GETITEMHEIGHT, 0, 0));
    const int height = rect.bottom - rect.top + openLines * lineHeight;
    SetWindowPos(list, nullptr, 0, 0, rect.right - rect.left, height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CActionChoice::Show(int32_t action, const CStr& application)
{
    // A number behind the actions may be the position of the name, which is not meant.
    Select(action >= 0 && action < actionCount ? action : -1);
    if (action != KeyActionStart) {
        return;
    }
    RemoveName();
    AddName(application);
    if (nameItem >= 0) {
        Select(nameItem);
    }
}

bool CActionChoice::Take(HWND dialog, CStartPrograms& programs, int32_t& action, CStr& application)
{
    const auto selected = static_cast<int32_t>(SendMessageW(list, CB_GETCURSEL, 0, 0));
    if (selected == nameItem) {
        return false; // or nothing is selected, and there is no name
    }
    RemoveName();
    action = selected;
    if (selected != KeyActionStart) {
        return true;
    }
    CStr path;
    const bool picked = CDialogSelectApp::Pick(programs, path);
    if (!IsWindow(dialog)) {
        return false;
    }
    if (picked) {
        application = path;
    } else {
        action = KeyActionLeave;
    }
    // The main window was enabled at the picker's end, and has the keyboard.
    SetFocus(dialog);
    SetFocus(list);
    return true;
}

void CActionChoice::Select(int32_t item)
{
    SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(item), 0);
}

void CActionChoice::RemoveName()
{
    if (nameItem >= 0) {
        SendMessageW(list, CB_DELETESTRING, static_cast<WPARAM>(nameItem), 0);
        nameItem = -1;
    }
}

void CActionChoice::AddName(const CStr& application)
{
    const int dot = application.ReverseFind(L'.');
    if (dot < 0) {
        return;
    }
    const CStr path = application.Left(static_cast<uint32_t>(dot));
    const int backslash = path.ReverseFind(L'\\');
    if (backslash < 0) {
        return;
    }
    const wchar_t* name = path.Buffer() + backslash + 1;
    nameItem = static_cast<int32_t>(SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name)));
}
