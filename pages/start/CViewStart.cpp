// The launcher page.
#include "pages/start/CViewStart.h"

#include "dialogs/CDialogInfo.h"
#include "framework/CVireoApp.h"
#include "framework/Scale.h"
#include "lists/RowMeasures.h"
#include "pages/start/ShortcutReport.h"
#include "pages/start/StartShortcut.h"
#include "resources/ids.h"
#include "startmenu/CStartPrograms.h"

static constexpr SPageTraits pageTraits = {0, 0, 0};
static constexpr WORD backKey = SHMBOF_NODEFAULT | SHMBOF_NOTIFY;

CViewStart::CViewStart(CStartPrograms& startPrograms)
    : CListPage(pageTraits), programs(startPrograms), list(look, shown, search, underlinedFont)
{}

void CViewStart::OnCreate()
{
    underlinedFont = CreateSystemFont(FW_NORMAL, 0, true);
    searchHeight = ScaleY(28);
    CListPage::OnCreate();
    search.Construct(window);
}

void CViewStart::Layout(int width, int height)
{
    CListPage::Layout(width, height);
    const int margin = ScaleX(4);
    MoveWindow(search.Window(), margin, headerHeight + ScaleY(4), width - 2 * margin,
               searchHeight - ScaleY(8), TRUE);
}

void CViewStart::OnActivate(int32_t previousViewId)
{
    CListPage::OnActivate(previousViewId);
    // The Back key is to erase in the search box, where it would leave the program otherwise.
    SendMessageW(CVireoApp::Current()->MenuBar(), SHCMBM_OVERRIDEKEY, VK_ESCAPE,
                 MAKELPARAM(backKey, backKey));
}

// The rows are gone before the records that they point to.
void CViewStart::Collect()
{
    shown.Delete(0, shown.Count());
    if (rescan) {
        rescan = false;
        programs.Refill(CVireoApp::Current()->MainWindow());
    }
    search.Read();
    const CRecords<SAppsList>& all = programs.Programs();
    for (uint32_t i = 0; i < all.Count(); ++i) {
        CStr name(all.At(i)->name);
        name.MakeLower();
        if (search.PlaceIn(name) != -1) {
            shown.Append(all.At(i));
        }
    }
}

void CViewStart::FillContents(int row)
{
    CListPage::FillContents(row);
    list.SelectRow(shown.Count() > 0 ? 0 : -1);
    // The list passes the focus on to the search box: where that has it, its caret is left alone.
    if (GetFocus() != search.Window()) {
        SetFocus(list.Window());
    }
}

void CViewStart::Refresh()
{
    rescan = true;
    CListPage::Refresh();
}

SAppsList* CViewStart::Selected() const
{
    const int row = list.SelectedRow();
    return row >= 0 && row < static_cast<int>(shown.Count()) ? shown.At(static_cast<uint32_t>(row)) : nullptr;
}

void CViewStart::PassKeyToList(WPARAM key) const
{
    SendMessageW(list.Window(), WM_KEYDOWN, key, 0);
}

static void ShowReport(const SAppsList& program)
{
    CStr report;
    AppendShortcutReport(report, program);
    CDialogInfo::Show(report);
}

void CViewStart::OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control)
{
    const SAppsList* selected = Selected();
    switch (commandId) {
    case IDC_SEARCH:
        if (notifyCode == EN_CHANGE) {
            FillContents(0);
            ShowRefilled();
        }
        break;
    case CMD_START_APPLICATION:
    case CMD_ACTIVATE_ITEM:
        if (selected != nullptr) {
            StartShortcut(CStr(selected->path)); // a copy: the shell lets messages in
        }
        break;
    case CMD_APPLICATION_INFO:
        if (selected != nullptr) {
            ShowReport(*selected);
        }
        break;
    case CMD_ROW_ABOVE:
        PassKeyToList(VK_UP);
        break;
    case CMD_ROW_BELOW:
        PassKeyToList(VK_DOWN);
        break;
    case CMD_LAST_ROW:
        PassKeyToList(VK_END);
        break;
    case CMD_FIRST_ROW:
        PassKeyToList(VK_HOME);
        break;
    case CMD_PAGE_DOWN:
        PassKeyToList(VK_NEXT);
        break;
    case CMD_PAGE_UP:
        PassKeyToList(VK_PRIOR);
        break;
    default:
        CListPage::OnCommand(commandId, notifyCode, control);
        break;
    }
}
