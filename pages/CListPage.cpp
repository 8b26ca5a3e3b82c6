// A page: title strip, list, and the behaviour that all pages share.
#include "pages/CListPage.h"

#include "framework/CVireoApp.h"
#include "lists/RowMeasures.h"
#include "pages/PageTable.h"
#include "pages/TitleStrip.h"
#include "resources/ids.h"

void CListPage::Create(int32_t viewId, uint32_t viewMenuBarId, uint32_t viewAcceleratorId)
{
    BaseConstruct(viewId, viewMenuBarId, viewAcceleratorId);
}

void CListPage::OnCreate()
{
    look.Create(traits.boldExtraHeight, traits.normalExtraHeight);
    headerHeight = TitleStripHeight(look.BoldFont());
    List().Construct(window);
}

void CListPage::OnActivate(int32_t /*previousViewId*/)
{
    FillContents(traits.activationRow);
    List().RecreateColumns(true);
    SetFocus(FocusWindow());
    if (List().Count() > 0) {
        List().SelectRow(0);
    }
    List().Repaint();
    RECT strip = {};
    GetClientRect(window, &strip);
    strip.bottom = headerHeight;
    InvalidateRect(window, &strip, FALSE);
    UpdateWindow(window);
}

bool CListPage::Recollect()
{
    if (collecting) {
        return false;
    }
    collecting = true;
    Collect();
    collecting = false;
    return true;
}

void CListPage::FillContents(int /*row*/)
{
    if (Recollect()) {
        List().SetCount(List().RecordCount());
        List().ClampSelection(); // the list may have become shorter
    }
}

void CListPage::Refresh()
{
    FillContents(List().SelectedRow());
    ShowRefilled();
}

void CListPage::ShowRefilled()
{
    List().RecreateColumns(true);
    List().Repaint();
}

void CListPage::OnPaint(HDC deviceContext)
{
    RECT client = {};
    GetClientRect(window, &client);
    DrawTitleStrip(deviceContext, client, headerHeight, PageOf(id).title, look.BoldFont(), List());
}

void CListPage::OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control)
{
    CVireoApp* app = CVireoApp::Current();
    switch (commandId) {
    case CMD_PREVIOUS_PAGE:
        app->ActivateView(Neighbour(id, -1));
        break;
    case CMD_NEXT_PAGE:
        app->ActivateView(Neighbour(id, 1));
        break;
    case CMD_REFRESH:
        Refresh();
        break;
    default:
        app->OnCommand(commandId, notifyCode, control);
        break;
    }
}

void CListPage::Layout(int width, int height)
{
    CLB_Base& list = List();
    MoveWindow(list.Window(), 0, ListTop(), width, height - ListTop(), TRUE);
    if (CVireoApp::Current()->ActiveView() == this) { // any other page's column is made when it is shown
        list.RecreateColumns(true);
    }
    list.ShowSelectedRow();
}

// The page may be gone afterwards: a command of the menu can end the program.
void CListPage::TapHeader(POINT point)
{
    RECT client = {};
    GetClientRect(window, &client);
    switch (TitleStripZone(point.x, client, headerHeight)) {
    case StripZone::PreviousPage:
        OnCommand(CMD_PREVIOUS_PAGE, 0, 0);
        break;
    case StripZone::NextPage:
        OnCommand(CMD_NEXT_PAGE, 0, 0);
        break;
    case StripZone::Title: {
        const uint32_t command = TrackTitleStripMenu(window, point, PageOf(id).showCommand);
        if (CVireoApp::Current()->HasMainWindow()) {
            OnCommand(command, 0, 0);
        }
        break;
    }
    }
}

LRESULT CListPage::Notify(const NMHDR& notification)
{
    if (notification.idFrom != IDC_LIST) {
        return 1;
    }
    if (notification.code == GN_CONTEXTMENU) {
        return 1; // consumed: the pages have no context menu
    }
    if (notification.code == LVN_ITEMACTIVATE) {
        OnCommand(CMD_ACTIVATE_ITEM, 0, 0);
    }
    return 0;
}

LRESULT CListPage::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_SIZE:
        if (List().Window() != nullptr) { // it comes during the page's own creation too
            Layout(LOWORD(lParam), HIWORD(lParam));
        }
        break;
    case WM_SETFOCUS:
        SetFocus(FocusWindow());
        return 0;
    case WM_MEASUREITEM:
        if (List().MeasureItem(*reinterpret_cast<MEASUREITEMSTRUCT*>(lParam))) {
            return TRUE;
        }
        break;
    case WM_DRAWITEM:
        if (List().DrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam))) {
            return TRUE;
        }
        break;
    case WM_NOTIFY:
        return Notify(*reinterpret_cast<const NMHDR*>(lParam));
    case WM_LBUTTONDOWN: {
        HWND self = window;
        const POINT point = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
        if (point.y <= headerHeight) {
            TapHeader(point);
        }
        return CVireoApp::Current()->HasMainWindow() ? DefWindowProcW(self, message, wParam, lParam) : 0;
    }
    default:
        break;
    }
    return CVireoView::WindowProc(message, wParam, lParam);
}
