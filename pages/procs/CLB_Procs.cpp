// Rows of the processes page; it has none yet.
#include "pages/procs/CLB_Procs.h"

static constexpr SListTraits listTraits = {L"CLB_Procs::Construct", L"CLB_Procs::RecreateColumns", true};

CLB_Procs::CLB_Procs(const CRowLook& rowLook) : CLB_SingleLine(listTraits, rowLook) {}

void CLB_Procs::DrawRow(HDC /*target*/, const RECT& /*rect*/, uint32_t /*row*/, bool /*selected*/) {}
