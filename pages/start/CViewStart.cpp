// The launcher page.
#include "pages/start/CViewStart.h"

static constexpr SPageTraits pageTraits = {0, 0, 0};

CViewStart::CViewStart() : CListPage(pageTraits), list(look) {}
