// The states of the system information.
#include "tools/tour/Tour.h"

#include "resources/ids.h"

void Tour::ShowSysInfo()
{
    GoToPage(sysInfoPage, CMD_SHOW_SYSINFO);
    Keep("sysinfo");
    ShowMenu("sysinfo-menu");
    ShowDialog(CMD_MEMORY_INFORMATION, "memory-report", HasReport);
    ShowDialog(CMD_BATTERY_INFORMATION, "battery-report", HasReport);
}
