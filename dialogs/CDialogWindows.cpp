// The tree of a process's windows: a snapshot taken when the dialog opens.
#include "dialogs/CDialogWindows.h"

#include "dialogs/WindowReport.h"
#include "framework/WindowFacts.h"
#include "resources/ids.h"

static constexpr uint32_t itemLength = 520;
static constexpr LPARAM noWindow = -1; // item data of the root and of the line that stands for no window

CDialogWindows::CDialogWindows(DWORD listedProcessId, const wchar_t* rootCaption, HWND preselectedWindow)
    : processId(listedProcessId), caption(rootCaption), preselect(preselectedWindow)
{}

int CDialogWindows::Show(DWORD listedProcessId, const wchar_t* rootCaption, HWND preselectedWindow)
{
    CDialogWindows dialog(listedProcessId, rootCaption, preselectedWindow);
    return dialog.StartDialog(IDD_WINDOWS, IDB_WINDOWS, 0, true);
}

HWND CDialogWindows::Tree() const
{
    return GetDlgItem(window, IDC_WINDOWS_TREE);
}

void CDialogWindows::OnInitDialog()
{
    HWND tree = Tree();
    SetWindowLongPtrW(tree, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    originalTreeProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(tree, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(TreeProc)));

    root = Insert(caption, noWindow, TVI_ROOT);
    InsertTopLevelWindows();
    if (!anyFound) {
        Insert(L"No windows detected", noWindow, root);
    }
    SendMessageW(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(root));
    if (preselectedItem != nullptr) {
        SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(preselectedItem));
    }
    FillClient(IDC_WINDOWS_TREE);
    SetFocus(tree);
}

void CDialogWindows::OnDestroy()
{
    if (originalTreeProcedure != nullptr) {
        SetWindowLongPtrW(Tree(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(originalTreeProcedure));
    }
}

void CDialogWindows::OnCommand(uint32_t commandId, uint32_t /*notifyCode*/, LPARAM /*control*/)
{
    if (!EndOnCloseCommand(commandId) && commandId == CMD_WINDOW_INFO) {
        ShowSelectedReport();
    }
}

INT_PTR CDialogWindows::DialogProc(UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    if (message == WM_SIZE) {
        FillClient(IDC_WINDOWS_TREE);
    }
    return 0;
}

HTREEITEM CDialogWindows::Insert(const wchar_t* text, LPARAM data, HTREEITEM parent)
{
    CStr label(text); // the control takes a writable text
    TVINSERTSTRUCTW insertion = {};
    insertion.hParent = parent;
    insertion.hInsertAfter = TVI_LAST;
    insertion.item.mask = TVIF_TEXT | TVIF_PARAM;
    insertion.item.pszText = label.Buffer();
    insertion.item.lParam = data;
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(Tree(), TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insertion)));
}

BOOL CALLBACK CDialogWindows::InsertWindowsProc(HWND listed, LPARAM dialog)
{
    auto* self = reinterpret_cast<CDialogWindows*>(dialog);
    if (WindowProcessId(listed) == self->processId) {
        self->anyFound = true;
        self->InsertWindow(listed, self->root);
    }
    return TRUE;
}

void CDialogWindows::InsertTopLevelWindows()
{
    EnumWindows(InsertWindowsProc, reinterpret_cast<LPARAM>(this));
}

void CDialogWindows::InsertWindow(HWND listed, HTREEITEM parent)
{
    // A title has at most 259 characters and a class name 255: with the quotes they fit the label.
    CStr label(itemLength);
    CStr text;
    WindowTitle(listed, text);
    label.Append(L"\"");
    label.Append(text);
    label.Append(L"\" - ");
    WindowClass(listed, text);
    label.Append(text);

    HTREEITEM item = Insert(label, reinterpret_cast<LPARAM>(listed), parent);
    if (listed == preselect) {
        preselectedItem = item;
    }
    for (HWND child = GetWindow(listed, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        InsertWindow(child, item);
    }
}

void CDialogWindows::ShowSelectedReport()
{
    HWND tree = Tree();
    TVITEMW item = {};
    item.mask = TVIF_PARAM;
    item.hItem = reinterpret_cast<HTREEITEM>(SendMessageW(tree, TVM_GETNEXTITEM, TVGN_CARET, 0));
    if (item.hItem == nullptr || !SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item))) {
        return;
    }
    ShowWindowReport(reinterpret_cast<HWND>(item.lParam));
    SetFocus(tree);
}

LRESULT CALLBACK CDialogWindows::TreeProc(HWND tree, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_GETDLGCODE) {
        return DLGC_WANTALLKEYS;
    }
    auto* self = reinterpret_cast<CDialogWindows*>(GetWindowLongPtrW(tree, GWLP_USERDATA));
    return CallWindowProcW(self->originalTreeProcedure, tree, message, wParam, lParam);
}
