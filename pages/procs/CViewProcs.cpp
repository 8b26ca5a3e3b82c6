// The processes page.
#include "pages/procs/CViewProcs.h"

#include "dialogs/CDialogInfo.h"
#include "dialogs/CDialogWindows.h"
#include "pages/procs/EndProcess.h"
#include "pages/procs/ProcessReport.h"
#include "pages/procs/ProcessSnapshot.h"
#include "resources/ids.h"

static constexpr SPageTraits pageTraits = {2, 2, 0};

CViewProcs::CViewProcs() : CListPage(pageTraits), list(look, processes) {}

void CViewProcs::Collect()
{
    TakeProcessSnapshot(processes);
}

void CViewProcs::OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control)
{
    const SRowCopy<SProcIdentity> selected = CopyRow(processes, list.SelectedRow());
    switch (commandId) {
    case CMD_PROCESS_DETAILS:
    case CMD_ACTIVATE_ITEM:
        if (selected) {
            ShowDetails(selected.row);
        }
        break;
    case CMD_WINDOWS_LIST:
        if (selected) {
            CDialogWindows::Show(selected.identity.id, selected.identity.name, nullptr);
        }
        break;
    case CMD_END_PROCESS:
        if (selected) {
            End(selected);
        }
        break;
    default:
        CListPage::OnCommand(commandId, notifyCode, control);
        break;
    }
}

// The text is complete before the dialog lets a refresh in.
void CViewProcs::ShowDetails(int row) const
{
    CStr report;
    AppendProcessReport(report, Process(static_cast<uint32_t>(row)));
    CDialogInfo::Show(report);
}

void CViewProcs::End(const SRowCopy<SProcIdentity>& process)
{
    if (EndProcess(window, process.identity)) {
        FillContents(process.row);
        ShowRefilled();
    }
}
