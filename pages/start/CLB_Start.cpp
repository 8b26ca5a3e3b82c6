// Rows of the launcher page; it has none yet.
#include "pages/start/CLB_Start.h"

#include "pages/start/CViewStart.h"

static constexpr SListTraits listTraits = {L"CLB_Start::Construct", L"CLB_Start::RecreateColumns", true};

CLB_Start::CLB_Start(CViewStart& owningView) : CLB_SingleLine(listTraits, owningView) {}

void CLB_Start::DrawRow(HDC /*target*/, const RECT& /*rect*/, uint32_t /*row*/, bool /*selected*/) {}
