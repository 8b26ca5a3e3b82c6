// The programs of the Start menu.
#include "startmenu/CStartPrograms.h"

#include "lists/SystemIcons.h"
#include "startmenu/FillFolder.h"
#include "startmenu/StartMenuFolder.h"

void CStartPrograms::Refill(HWND owner)
{
    programs.Clear();
    CStr folder;
    if (!StartMenuFolder(owner, folder)) {
        return;
    }
    FillFolder(folder, programs);
    NamePrograms();
    SortPrograms();
    FindKnownPrograms();
}

void CStartPrograms::NamePrograms()
{
    for (uint32_t i = 0; i < programs.Count(); ++i) {
        SAppsList& program = *programs.At(i);
        program.name = program.path;
        const int dot = program.name.ReverseFind(L'.');
        if (dot != -1) {
            const auto end = static_cast<uint32_t>(dot);
            program.name.Delete(end, program.name.Length() - end);
            const int backslash = program.name.ReverseFind(L'\\');
            program.name.Delete(0, static_cast<uint32_t>(backslash + 1));
        }
    }
}

static int CompareNames(const void* left, const void* right)
{
    const SAppsList* a = *static_cast<SAppsList* const*>(left);
    const SAppsList* b = *static_cast<SAppsList* const*>(right);
    return _wcsicmp(a->name, b->name);
}

void CStartPrograms::SortPrograms()
{
    if (programs.Count() > 1) {
        qsort(&programs.At(0), programs.Count(), sizeof(SAppsList*), CompareNames);
    }
}

// The table is not emptied before: where a program is found no more, its index of before stays, on purpose.
void CStartPrograms::FindKnownPrograms()
{
    for (uint32_t i = 0; i < knownProgramCount; ++i) {
        knownPrograms.Append(-1);
    }
    for (uint32_t i = 0; i < programs.Count(); ++i) {
        const int slot = KnownProgramOf(programs.At(i)->target);
        if (slot != noKnownProgram) {
            knownPrograms.At(static_cast<uint32_t>(slot)) = static_cast<int>(i);
        }
    }
}

int CStartPrograms::IconOf(SAppsList& program)
{
    if (program.icon == -1) {
        program.icon = SystemIconIndex(program.path);
    }
    return program.icon;
}

int CStartPrograms::KnownIcon(uint32_t slot)
{
    const int index = slot < knownPrograms.Count() ? knownPrograms.At(slot) : -1;
    if (index < 0 || index >= static_cast<int>(programs.Count())) {
        return -1; // not installed, or an index that a shorter list left behind
    }
    return IconOf(*programs.At(static_cast<uint32_t>(index)));
}
