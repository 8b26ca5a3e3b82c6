// Rows of the running applications: icon, name and heap usage.
#include "pages/tasks/CLB_Tasks.h"

#include "lists/CRowPainter.h"

static constexpr SListTraits tasksListTraits = {L"CLB_Tasks::Construct", L"CLB_Tasks::RecreateColumns", true};

CLB_Tasks::CLB_Tasks(const CRowLook& rowLook, const CTaskRecords& taskRecords)
    : CLB_SingleLine(tasksListTraits, rowLook), tasks(taskRecords)
{}

void CLB_Tasks::DrawRow(HDC target, const RECT& rect, uint32_t row, bool selected)
{
    const STaskInfo& task = *tasks.At(row);
    const SSystemIcons& icons = look.Icons();
    CRowPainter painter(target, rect, selected);
    if (task.icon != nullptr) {
        painter.DrawIcon(task.icon, icons.height);
    } else {
        painter.DrawIcon(icons.list, task.iconIndex, icons.height);
    }
    DrawNameAndSize(painter, task.name, task.heapBytes, painter.TextArea(icons.width));
}
