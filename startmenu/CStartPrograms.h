// The programs of the Start menu, and where the well-known built-in ones stand among them.
#pragma once

#include "framework/CRecords.h"
#include "startmenu/SAppsList.h"

// Slots of the table of well-known built-in programs.
enum KnownProgram : uint32_t
{
    KnownContacts = 0,
    KnownCalendar = 1,
    KnownTasks = 2,
    KnownBrowser = 3,
    KnownPictures = 4,
    KnownPhone = 5,
    KnownInternetSharing = 6,
    KnownNotes = 7
};

class CStartPrograms
{
    CRecords<SAppsList> programs;
    CArray<int> knownPrograms; // index of each well-known program's entry, or -1

  public:
    CRecords<SAppsList>& Programs() { return programs; }
    CArray<int>& KnownPrograms() { return knownPrograms; }

    // System small-icon index of a well-known program (KnownProgram), asked for once; -1 when it is not
    // installed.
    int KnownIcon(uint32_t slot);
};
