// The system information page.
#include "pages/sysinfo/CViewSysInfo.h"

static constexpr SPageTraits pageTraits = {2, 2, 0};

CViewSysInfo::CViewSysInfo() : CListPage(pageTraits), list(look) {}

void CViewSysInfo::Fill(int /*row*/)
{
    SetRowCount(0);
}
