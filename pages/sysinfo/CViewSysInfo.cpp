// The system information page.
#include "pages/sysinfo/CViewSysInfo.h"

#include "resources/ids.h"

static constexpr SPageTraits pageTraits = {
    L"System information", CMD_SHOW_SYSINFO, PageStart, PageProcs, 2, 2, 0};

CViewSysInfo::CViewSysInfo() : CListPage(pageTraits), list(*this) {}

void CViewSysInfo::Fill(int /*row*/)
{
    SetRowCount(0);
}
