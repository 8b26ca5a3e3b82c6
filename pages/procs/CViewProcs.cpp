// The processes page.
#include "pages/procs/CViewProcs.h"

static constexpr SPageTraits pageTraits = {2, 2, 0};

CViewProcs::CViewProcs() : CListPage(pageTraits), list(look) {}

void CViewProcs::Fill(int /*row*/)
{
    SetRowCount(0);
}
