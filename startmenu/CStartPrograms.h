// The programs of the Start menu, and where the well-known built-in ones stand among them.
#pragma once

#include "framework/CRecords.h"
#include "startmenu/KnownPrograms.h"
#include "startmenu/SAppsList.h"

class CStartPrograms
{
    CRecords<SAppsList> programs;
    CArray<int> knownPrograms; // index of each well-known program's entry, or -1

  public:
    CRecords<SAppsList>& Programs() { return programs; }
    CArray<int>& KnownPrograms() { return knownPrograms; }

    // Scans the Start menu anew; no programs when the shell does not tell where it is. The records of before
    // are gone then, and whatever points to them. owner: a window of the program.
    void Refill(HWND owner);

    // System small-icon index of a well-known program (KnownProgram), asked for once; -1 when it is not
    // installed.
    int KnownIcon(uint32_t slot);
    // The same of any program's shortcut; -1 when the shell has no icon for it.
    static int IconOf(SAppsList& program);

  private:
    void NamePrograms();
    void SortPrograms();
    void FindKnownPrograms();
};
