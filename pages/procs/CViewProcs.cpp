// The processes page.
#include "pages/procs/CViewProcs.h"

#include "resources/ids.h"

static constexpr SPageTraits pageTraits = {L"Processes", CMD_SHOW_PROCS, PageSysInfo, PageTasks, 2, 2, 0};

CViewProcs::CViewProcs() : CListPage(pageTraits), list(*this) {}

void CViewProcs::Fill(int /*row*/)
{
    SetRowCount(0);
}
