// Rows of the launcher page; it has none yet.
#include "pages/start/CLB_Start.h"

static constexpr SListTraits listTraits = {L"CLB_Start::Construct", L"CLB_Start::RecreateColumns", true};

CLB_Start::CLB_Start(const CRowLook& rowLook) : CLB_SingleLine(listTraits, rowLook) {}

void CLB_Start::DrawRow(HDC /*target*/, const RECT& /*rect*/, uint32_t /*row*/, bool /*selected*/) {}
