// What the single-line lists have in common.
#include "lists/CLB_SingleLine.h"

#include "framework/CStr.h"
#include "framework/Scale.h"
#include "lists/CRowPainter.h"
#include "lists/RowMeasures.h"

int CLB_SingleLine::RowHeight() const
{
    return SingleLineRowHeight(look.BoldFont(), look.Icons().height);
}

void CLB_SingleLine::DrawNameAndSize(CRowPainter& painter, const wchar_t* name, uint64_t bytes,
                                     RECT area) const
{
    CStr size;
    size.AppendSize(static_cast<int64_t>(bytes));
    area.right -= painter.DrawRight(look.NormalFont(), size, area) + ScaleX(2);
    painter.DrawLeft(look.BoldFont(), name, area);
}
