// The table of a process's GDI objects.
#include "tests/support/GdiTable.h"

GdiCounts CountGdiObjects(const GdiEntry* table)
{
    GdiCounts counts{};
    for (size_t i = 0; table && i < gdiEntryCount; i++) {
        if (table[i].type != 0) {
            counts[table[i].type]++;
        }
    }
    return counts;
}
