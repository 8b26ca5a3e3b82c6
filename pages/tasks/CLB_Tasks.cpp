// Rows of the running applications: icon, name and heap usage.
#include "pages/tasks/CLB_Tasks.h"

#include "framework/Scale.h"
#include "lists/CRowPainter.h"
#include "pages/tasks/CViewTasks.h"

static constexpr SListTraits tasksListTraits = {L"CLB_Tasks::Construct", L"CLB_Tasks::RecreateColumns", true};

CLB_Tasks::CLB_Tasks(CViewTasks& owningView) : CLB_SingleLine(tasksListTraits, owningView), view(owningView)
{}

void CLB_Tasks::DrawRow(HDC target, const RECT& rect, uint32_t row, bool selected)
{
    const STaskInfo& task = view.Task(row);
    const SSystemIcons& icons = view.Icons();
    CRowPainter painter(target, rect, selected);
    if (task.icon != nullptr) {
        painter.DrawIcon(task.icon, icons.height);
    } else {
        painter.DrawIcon(icons.list, task.iconIndex, icons.height);
    }
    CStr size;
    size.AppendSize(static_cast<int64_t>(task.heapBytes));
    RECT area = painter.TextArea(icons.width);
    area.right -= painter.DrawRight(view.NormalFont(), size, area) + ScaleX(2);
    painter.DrawLeft(view.BoldFont(), task.name, area);
}
