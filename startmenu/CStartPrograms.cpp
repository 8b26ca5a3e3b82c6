// The programs of the Start menu.
#include "startmenu/CStartPrograms.h"

#include "lists/SystemIcons.h"

int CStartPrograms::KnownIcon(uint32_t slot)
{
    const int index = slot < knownPrograms.Count() ? knownPrograms.At(slot) : -1;
    if (index < 0 || index >= static_cast<int>(programs.Count())) {
        return -1; // not installed, or an index that a shorter list left behind
    }
    SAppsList& program = *programs.At(static_cast<uint32_t>(index));
    if (program.icon == -1) {
        program.icon = SystemIconIndex(program.path);
    }
    return program.icon;
}
