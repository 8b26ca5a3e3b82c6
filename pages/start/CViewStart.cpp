// The launcher page.
#include "pages/start/CViewStart.h"

#include "resources/ids.h"

static constexpr SPageTraits pageTraits = {L"Start", CMD_SHOW_START, PageTasks, PageSysInfo, 0, 0, 0};

CViewStart::CViewStart() : CListPage(pageTraits), list(*this) {}

void CViewStart::Fill(int /*row*/)
{
    SetRowCount(0);
}
