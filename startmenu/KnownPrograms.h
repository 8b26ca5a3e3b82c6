// The well-known built-in programs, told by what their shortcuts start.
#pragma once

#include "framework/CStr.h"

// Slots of the table of well-known programs.
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

inline constexpr uint32_t knownProgramCount = 8;
inline constexpr int noKnownProgram = -1;

// The slot (KnownProgram) of the program that a shortcut's target starts, or noKnownProgram.
int KnownProgramOf(const CStr& target);
