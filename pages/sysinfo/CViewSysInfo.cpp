// The system information page.
#include "pages/sysinfo/CViewSysInfo.h"

#include "dialogs/CDialogInfo.h"
#include "pages/sysinfo/SysInfoCollection.h"
#include "pages/sysinfo/SysInfoReport.h"
#include "resources/ids.h"

static constexpr SPageTraits pageTraits = {2, 2, 0};

CViewSysInfo::CViewSysInfo(CResources& pictureContainer)
    : CListPage(pageTraits), pictures(pictureContainer), list(look, rows, pictures, memoryDC)
{}

// Not before the page is seen: decoding takes longer than all else at the program's start.
void CViewSysInfo::OnActivate(int32_t previousViewId)
{
    pictures.Load(look.Icons().LargeSize());
    CListPage::OnActivate(previousViewId);
}

void CViewSysInfo::Collect()
{
    CollectSysInfo(rows);
}

static void ShowReport(void (*append)(CStr& report))
{
    CStr report;
    append(report);
    CDialogInfo::Show(report);
}

void CViewSysInfo::OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control)
{
    switch (commandId) {
    case CMD_MEMORY_INFORMATION:
        ShowReport(AppendMemoryReport);
        break;
    case CMD_BATTERY_INFORMATION:
        ShowReport(AppendBatteryReport);
        break;
    case CMD_ROW_ABOVE:
        SelectIfThere(list.TopRow() - 1);
        break;
    case CMD_ROW_BELOW:
        SelectIfThere(list.TopRow() + list.RowsPerPage());
        break;
    default:
        CListPage::OnCommand(commandId, notifyCode, control);
        break;
    }
}

void CViewSysInfo::SelectIfThere(int row)
{
    if (row >= 0 && row < static_cast<int>(list.Count())) {
        list.SelectRow(row);
    }
}
