// Rows of the system information page; it has none yet.
#include "pages/sysinfo/CLB_Memory.h"

static constexpr SListTraits listTraits = {L"CLB_Memory::Construct", L"CLB_Memory::RecreateColumns", false};

CLB_Memory::CLB_Memory(const CRowLook& rowLook) : CLB_SingleLine(listTraits, rowLook) {}

void CLB_Memory::DrawRow(HDC /*target*/, const RECT& /*rect*/, uint32_t /*row*/, bool /*selected*/) {}
