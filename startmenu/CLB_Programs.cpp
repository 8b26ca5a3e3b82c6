// Rows of the lists of programs.
#include "startmenu/CLB_Programs.h"

#include "lists/CRowPainter.h"
#include "startmenu/CStartPrograms.h"

void CLB_Programs::DrawRow(HDC target, const RECT& rect, uint32_t row, bool selected)
{
    SAppsList& program = *programs.At(row);
    const SSystemIcons& icons = look.Icons();
    CRowPainter painter(target, rect, selected);
    painter.DrawIcon(icons.list, CStartPrograms::IconOf(program), icons.height);
    DrawName(painter, program.name, painter.TextArea(icons.width));
}

void CLB_Programs::DrawName(CRowPainter& painter, const CStr& name, const RECT& area)
{
    painter.DrawLeft(look.NormalFont(), name, area);
}
