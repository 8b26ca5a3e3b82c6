// Rows of the processes page: icon, name and heap usage.
#include "pages/procs/CLB_Procs.h"

#include "framework/Scale.h"
#include "lists/CRowPainter.h"

static constexpr SListTraits listTraits = {L"CLB_Procs::Construct", L"CLB_Procs::RecreateColumns", true};

CLB_Procs::CLB_Procs(const CRowLook& rowLook, const CRecords<SProcInfo>& processRecords)
    : CLB_SingleLine(listTraits, rowLook), processes(processRecords)
{}

void CLB_Procs::DrawRow(HDC target, const RECT& rect, uint32_t row, bool selected)
{
    const SProcInfo& process = *processes.At(row);
    const SSystemIcons& icons = look.Icons();
    CRowPainter painter(target, rect, selected);
    RECT area = rect; // without an icon the name begins at the row's edge
    if (process.iconIndex >= 0) {
        painter.DrawIcon(icons.list, process.iconIndex, icons.height);
        area = painter.TextArea(icons.width);
    }
    area.right -= ScaleX(2);
    DrawNameAndSize(painter, process.name, process.heapBytes, area);
}
